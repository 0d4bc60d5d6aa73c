([.[] | select(.operation)] | if length > 0 then
  "\nOperation\tSystem calls\tAllocations\tThe calls",
  (.[] | "\(.operation)\t\(.system_calls)\t\(.allocations)\t\(.kinds)")
else empty end)
