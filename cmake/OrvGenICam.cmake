# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

# Orv::GenApi: the GenApi interfaces of an installed reference implementation, below ORV_GENICAM_ROOT. Also installed
# with the library, where an application's find_package includes it.

set(_orv_genicam_include "${ORV_GENICAM_ROOT}/library/CPP/include")
if(NOT EXISTS "${_orv_genicam_include}/GenApi/INodeMap.h")
    message(FATAL_ERROR "ORV_GENICAM_ROOT=${ORV_GENICAM_ROOT} has no library/CPP/include/GenApi/INodeMap.h")
endif()

# The folder is named after system and processor (Linux64_x64, Linux64_ARM, ...): the one that is there is meant.
file(GLOB _orv_found "${ORV_GENICAM_ROOT}/bin/Linux*/libGenApi_*_v3_*.so")
list(TRANSFORM _orv_found REPLACE "/[^/]*$" "")
list(REMOVE_DUPLICATES _orv_found)
list(LENGTH _orv_found _orv_count)
if(NOT _orv_count EQUAL 1)
    message(FATAL_ERROR
        "ORV_GENICAM_ROOT=${ORV_GENICAM_ROOT} must hold libGenApi_*_v3_*.so in exactly one folder bin/Linux*; found "
        "${_orv_count}: ${_orv_found}")
endif()
set(_orv_genicam_bin "${_orv_found}")

add_library(Orv::GenApi INTERFACE IMPORTED GLOBAL)
target_include_directories(Orv::GenApi SYSTEM INTERFACE "${_orv_genicam_include}")
foreach(_orv_library GenApi GCBase)
    file(GLOB _orv_found "${_orv_genicam_bin}/lib${_orv_library}_*_v3_*.so")
    list(LENGTH _orv_found _orv_count)
    if(NOT _orv_count EQUAL 1)
        message(FATAL_ERROR
            "${_orv_genicam_bin} must hold exactly one lib${_orv_library}_*_v3_*.so; found ${_orv_count}")
    endif()
    target_link_libraries(Orv::GenApi INTERFACE "${_orv_found}")
endforeach()
