# cmake -D IN=<compiled resource> -D OUT=<source> -P CutResourceInitializer.cmake
#
# Copies a compiled resource without the object that registers the resource when the library is loaded.
file(READ ${IN} text)
string(FIND "${text}" "namespace {\n   struct initializer" begin)
if(begin EQUAL -1)
    message(FATAL_ERROR "${IN} does not end with the initializer that the resource compiler usually writes")
endif()
string(SUBSTRING "${text}" 0 ${begin} text)
file(WRITE ${OUT} "${text}")
