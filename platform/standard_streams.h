// Standard input, output and error of this process.
#pragma once

// Opens those of descriptors 0 to 2 that are closed, so that no file or
// connection opened later gets messages written into it. Reading from such a
// descriptor gives the end of the file, writing fails. To be called before
// anything is opened. Ends the process when there is no /dev/null.
void OpenStandardStreams();
