# Makes a table of places a piece of C++: cmake -DTABLE=PL.tsv -DOUTPUT=places_PL.inc -P table_of_places.cmake
#
# A script of the build's own and no program: it runs where the compiler is one for another system, too.
file(READ "${TABLE}" places)
string(REPLACE "name\tlat\tlon\tpopulation\n" "" places "${places}")
string(REGEX REPLACE "([^\t\n]+)\t([0-9.]+)\t([0-9.]+)\t([0-9]+)\n" "{\\2F, \\3F, \\4U, \"\\1\"},\n" pieces "${places}")
if(pieces MATCHES "\t")
  message(FATAL_ERROR "${TABLE}: not every line is a name, two numbers of degrees and a population")
endif()
file(WRITE "${OUTPUT}" "${pieces}")
