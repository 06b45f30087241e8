# cmake -D IN=<compiled resource> -D OUT=<source> -P CutResourceInitializer.cmake
#
# Leaves out the object by which a compiled resource registers itself at load time.
file(READ ${IN} text)
string(FIND "${text}" "namespace {\n   struct initializer" begin)
if(begin EQUAL -1)
    message(FATAL_ERROR "${IN} does not end with the initializer that the resource compiler is known to write")
endif()
string(SUBSTRING "${text}" 0 ${begin} text)
file(WRITE ${OUT} "${text}")
