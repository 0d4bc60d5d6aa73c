# One row for each subject and size; times are processor time, and "growth"
# is the panel's for each step to the next size, in multiples of the step.

def time: if . >= 1 then "\(. * 100 | round / 100) s"
  elif . >= 1e-3 then "\(. * 1e5 | round / 100) ms"
  else "\(. * 1e8 | round / 100) us" end;
def ratio: . * 100 | round / 100;
def side($name): first(.sides[] | select(.name == $name)) // null;
def peers: [.sides[] | select(.name != "panel" and .name != "floor")];
def panel: side("panel").cpu;
def of_peer($i):
  if peers[$i] then peers[$i] | "\(.cpu | time)\t\(.ratio | ratio)\t\(.name)"
  else "-\t-\t-" end;

def row($previous):
  ([.subject, .size, (panel | time), (side("panel").wall | time),
   (side("floor") | if . then (.cpu | time), (.ratio | ratio) else "-", "-" end),
   of_peer(0),
   (if $previous and $previous.size > 0
    then ((panel / ($previous | panel)) / (.size / $previous.size)) | ratio
    else "-" end),
   "\(.peak / 104857.6 | round / 10) MB"] | map(tostring) | join("\t")),
  (peers[1:][] | ["", "", "", "", "", "", (.cpu | time), (.ratio | ratio),
   .name, "", ""] | map(tostring) | join("\t"));

"Subject\tSize\tPanel\t(wall)\tFloor\tx floor\tPeer\tx peer\tPeer is\tGrowth\tPeak",
([.[] | select(.subject)] | . as $all | range(length) as $i |
 ([$all[:$i][] | select(.subject == $all[$i].subject)] | last) as $previous |
 $all[$i] | row($previous))
