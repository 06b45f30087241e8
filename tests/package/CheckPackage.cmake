# Builds the outside project SOURCE against an installed copy, and runs it.
include(${CMAKE_CURRENT_LIST_DIR}/PackageTesting.cmake)
install_build()
build_outside(${SOURCE})
run(${WORK}/build/consumer)
if(NOT output STREQUAL " 200000000000.000000, 0.300000 1 2.1e+11 linear-elasticity\n")
    message(FATAL_ERROR "the outside project printed: ${output}")
endif()

# The installed program finds the installed libraries without environment variables.
run(${WORK}/installed/bin/vxmat show air)
