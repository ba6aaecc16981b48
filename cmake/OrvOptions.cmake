# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

# What a build can be told. Everything else follows from these.

set(ORV_GENICAM_ROOT "" CACHE PATH
    "Installed GenICam reference implementation (3.0 to 3.4) to build against; empty: the stand-ins here")
set(ORV_CAMERA_API_LIBRARY "" CACHE FILEPATH
    "Camera access library to link when ORV_GENICAM_ROOT is set; empty: the application provides it")
# GenApi's own folders, Base and GenApi, are too general for the place where every compiler looks.
set(ORV_GENAPI_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/OrvGenApi)
set(ORV_DESIGNER_PLUGIN_DIR "" CACHE STRING
    "Where the Qt Designer plug-in is installed; empty: below the folder for libraries, qt5/plugins/designer or qt6/...")
set(ORV_UDEV_RULES_DIR lib/udev/rules.d CACHE STRING "Where the udev rule for USB3 Vision cameras is installed")
set(ORV_SANITIZE "" CACHE STRING "Sanitizers for everything that is built here, e.g. address,undefined or thread")

# A vendor's headers replace the stand-ins, and with them go the programs and tests that need simulated cameras.
if(ORV_GENICAM_ROOT)
    set(ORV_STAND_INS OFF)
else()
    set(ORV_STAND_INS ON)
endif()

option(ORV_BUILD_DESIGNER "Build the Qt Designer plug-in" "${PROJECT_IS_TOP_LEVEL}")

include(CMakeDependentOption)
cmake_dependent_option(ORV_BUILD_TESTS "Build the test suite" "${PROJECT_IS_TOP_LEVEL}" "ORV_STAND_INS" OFF)
# Examples are built to see that they can be: without the tests, what is installed is built and nothing else.
cmake_dependent_option(ORV_BUILD_EXAMPLES "Build the examples" ON "ORV_BUILD_TESTS" OFF)
cmake_dependent_option(ORV_BUILD_APPS "Build the explorer" "${PROJECT_IS_TOP_LEVEL}" "ORV_STAND_INS" OFF)
cmake_dependent_option(ORV_BUILD_ARAVIS "Build the links to real cameras, if Aravis is there" ON "ORV_STAND_INS" OFF)
cmake_dependent_option(ORV_BUILD_BENCHMARKS "Build the benchmarks" OFF "ORV_STAND_INS" OFF)
cmake_dependent_option(ORV_BUILD_FUZZERS "Build the fuzzers (clang only)" OFF "ORV_BUILD_TESTS" OFF)
option(ORV_PLANT_FAULTS "Compile one fault into what each fuzzer tests, to see that it finds it" OFF)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported() # programs are linked so, too, whatever the compiler does by itself
set(CMAKE_AUTORCC_OPTIONS --format-version 1) # without the times of files: each build gives the same bytes
# Installed programs and libraries find each other wherever the whole is moved.
file(RELATIVE_PATH _orv_libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/${_orv_libraries}")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

if(ORV_BUILD_FUZZERS)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "ORV_BUILD_FUZZERS needs clang: its libFuzzer drives the fuzzers")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(ORV_SANITIZE)
    add_compile_options(-fsanitize=${ORV_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ORV_SANITIZE})
endif()
