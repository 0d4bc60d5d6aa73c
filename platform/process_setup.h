// What both programs do first.
#pragma once

// To be called as the first statement of main. From here on
//   - descriptors 0 to 2 are open, on /dev/null where they were closed, so that
//     no file or connection opened later gets messages written into it (writing
//     to such a stream fails);
//   - the process ends when memory runs out, see settings/out_of_memory.h;
//   - a file that grows past the limit of the process is a failed write, and
//     does not end the process (setrlimit(2): SIGXFSZ).
// Ends the process when there is no /dev/null.
void PrepareProcess();
