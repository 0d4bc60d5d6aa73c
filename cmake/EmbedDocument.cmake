# Run by embed_document: see Embed.cmake.
file(SIZE ${FILE} size)
if(NOT size EQUAL LENGTH)
  message(FATAL_ERROR
    "${FILE} is ${size} bytes long and must be ${LENGTH}: make up for it in "
    "its leading comment.")
endif()
file(READ ${FILE} text)
foreach(element object signal)
  string(TOUPPER ${element}S expected)
  string(REGEX MATCHALL "<${element} " elements "${text}")
  list(LENGTH elements count)
  if(NOT count EQUAL ${expected})
    message(FATAL_ERROR "${FILE} has ${count} elements <${element}> and must "
      "have ${${expected}}.")
  endif()
endforeach()
file(READ ${FILE} bytes HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${bytes}")
file(WRITE ${OUTPUT}
"extern const char ${NAME}[${LENGTH}];
extern const unsigned int ${NAME}_len;
const char ${NAME}[${LENGTH}] = {
${bytes}};
const unsigned int ${NAME}_len = ${LENGTH};
")
