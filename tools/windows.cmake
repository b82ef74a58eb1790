# Debian's compiler for Windows, to see whether the code keeps to what it finds there. Of the libraries it gets the headers
# that are installed for the machine it runs on, and none else of those: there is nothing of theirs to link with.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)

set(headers ${CMAKE_BINARY_DIR}/headers)
file(MAKE_DIRECTORY ${headers})
foreach(header IN ITEMS fmt pcre2.h zip.h zipconf.h)
  file(GLOB found /usr/include/${header} /usr/include/*/${header})
  list(GET found 0 found)
  file(CREATE_LINK ${found} ${headers}/${header} SYMBOLIC)
endforeach()
set(CMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES ${headers})
