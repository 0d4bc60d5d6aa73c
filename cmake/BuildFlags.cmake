# How the program's own code is compiled and linked: link to `build_flags`.
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

add_library(build_flags INTERFACE)
target_compile_features(build_flags INTERFACE cxx_std_20)
target_include_directories(build_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(build_flags INTERFACE
  -Wall -Wextra -Wconversion -Wformat=2 -Wshadow
  # g++ 12 sees null pointers inside std::string that cannot be there.
  $<$<CXX_COMPILER_ID:Clang>:-Wnull-dereference>
  # Clang includes it in -Wconversion, g++ does not.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>
  # g++ takes a source that another one includes for a header.
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:${CMAKE_UNITY_BUILD}>>:-Wno-subobject-linkage>
  $<$<BOOL:${WARNINGS_AS_ERRORS}>:-Werror>)

# What an attacker must get past, beside being correct.
set(hardened $<AND:$<CONFIG:Release>,$<NOT:$<OR:$<BOOL:${SANITIZE}>,$<BOOL:${FUZZ}>>>>)
target_compile_options(build_flags INTERFACE
  -fstack-protector-strong -fcf-protection)
target_compile_definitions(build_flags INTERFACE
  $<${hardened}:_FORTIFY_SOURCE=2>)
target_link_options(build_flags INTERFACE -Wl,-z,relro,-z,now -Wl,--as-needed)

if(SANITIZE)
  # Not vptr: it asks for type information, which the folders are without.
  target_compile_options(build_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize=vptr
    -fno-sanitize-recover=all
    -fno-omit-frame-pointer -g1)  # enough for the lines of a report
  target_link_options(build_flags INTERFACE -fsanitize=address,undefined)
endif()

if(FUZZ)
  target_compile_options(build_flags INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer -g)
  target_link_options(build_flags INTERFACE -fsanitize=address,undefined)
endif()

# A static library of one folder, from sources listed by name.
function(add_folder_library name)
  add_library(${name} STATIC ${ARGN})
  target_compile_options(${name} PRIVATE -fno-exceptions -fno-rtti)
  target_link_libraries(${name} PUBLIC build_flags)
endfunction()
