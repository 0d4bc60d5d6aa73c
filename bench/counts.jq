([.[] | select(.operation)] | if length > 0 then
  "\nOperation\tCalls\tAllocations\tKinds of calls",
  (.[] | "\(.operation)\t\(.system_calls)\t\(.allocations)\t\(.kinds)")
else empty end)
