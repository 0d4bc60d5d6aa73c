# One row for each subject and size, and one more for each further peer. Times
# are processor time; "growth" is the panel's from one size to the next, in
# multiples of the step; "each" is the peak memory for each of the size.

def rounded($digits): . * pow(10; $digits) | round / pow(10; $digits);
def time: if . >= 1 then "\(rounded(2)) s"
  elif . >= 1e-3 then "\(. * 1e3 | rounded(if . < 10 then 2 else 1 end)) ms"
  else "\(. * 1e6 | rounded(1)) us" end;
def bytes: if . >= 1048576 then "\(. / 1048576 | rounded(1)) MB"
  else "\(. / 1024 | round) kB" end;
def side($name): first(.sides[] | select(.name == $name)) // null;
def panel: side("panel").cpu;
def peers: [.sides[] | select(.name != "panel" and .name != "floor") |
  "\(.ratio | rounded(2)) \(.name)"];

def row($previous):
  ([.subject, .size,
    (side("floor") | if . then .ratio | rounded(2) else "-" end),
    (peers[0] // "-"), (panel | time), (.wall | time),
    (side("floor") | if . then .cpu | time else "-" end),
    (if $previous and $previous.size > 0
     then (panel / ($previous | panel)) / (.size / $previous.size) | rounded(2)
     else "-" end),
    (.peak | bytes), (if .size > 0 then "\(.peak / .size | round) B" else "-" end)],
   (peers[1:][] | ["", "", "", .])) | map(tostring) | join("\t");

"Subject\tSize\tx floor\tx peer\tPanel\t(wall)\tFloor\tGrowth\tPeak\tEach",
([.[] | select(.subject)] | . as $all | range(length) as $i |
 ([$all[:$i][] | select(.subject == $all[$i].subject)] | last) as $previous |
 $all[$i] | row($previous))
