# Turns files that people edit into constants that the program carries.

# Writes `output`, which defines the bytes of `file` as `const char name[]`,
# without a terminating zero, and their number as `const unsigned name_len`.
# The build stops when the file is not `length` bytes long, or does not hold
# that many objects and signals.
function(embed_document file name length objects signals output)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -D FILE=${file} -D NAME=${name}
            -D LENGTH=${length} -D OBJECTS=${objects} -D SIGNALS=${signals}
            -D OUTPUT=${output}
            -P ${PROJECT_SOURCE_DIR}/cmake/EmbedDocument.cmake
    DEPENDS ${file} ${PROJECT_SOURCE_DIR}/cmake/EmbedDocument.cmake
    VERBATIM)
endfunction()

# Writes `output`, which defines the picture as the serialised GdkPixdata
# `const guint8 name[]`. The compiler refuses a block that is not `length` bytes
# long.
function(embed_picture file name length output)
  find_program(GDK_PIXBUF_CSOURCE gdk-pixbuf-csource REQUIRED)
  # The array ends with the zero of a text.
  math(EXPR size "${length} + 1")
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -E echo "#include <glib.h>" > ${output}
    COMMAND ${CMAKE_COMMAND} -E echo "extern const guint8 ${name}[];"
            >> ${output}
    COMMAND ${GDK_PIXBUF_CSOURCE} --rle --extern --name=${name} ${file}
            >> ${output}
    COMMAND ${CMAKE_COMMAND} -E echo
            "static_assert(sizeof ${name} == ${size}, \"${file} must make a block of ${length} bytes\");"
            >> ${output}
    DEPENDS ${file}
    VERBATIM)
endfunction()
