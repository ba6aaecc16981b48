# Orv::GenApi: the GenApi interfaces of an installed reference implementation, below ORV_GENICAM_ROOT. Also installed
# with the library, where an application's find_package includes it.

set(_orv_genicam_include "${ORV_GENICAM_ROOT}/library/CPP/include")
if(NOT EXISTS "${_orv_genicam_include}/GenApi/INodeMap.h")
    message(FATAL_ERROR "ORV_GENICAM_ROOT=${ORV_GENICAM_ROOT} has no library/CPP/include/GenApi/INodeMap.h")
endif()

add_library(Orv::GenApi INTERFACE IMPORTED GLOBAL)
target_include_directories(Orv::GenApi SYSTEM INTERFACE "${_orv_genicam_include}")
foreach(_orv_library GenApi GCBase)
    file(GLOB _orv_found "${ORV_GENICAM_ROOT}/bin/Linux64_x64/lib${_orv_library}_*_v3_*.so")
    list(LENGTH _orv_found _orv_count)
    if(NOT _orv_count EQUAL 1)
        message(FATAL_ERROR
            "ORV_GENICAM_ROOT=${ORV_GENICAM_ROOT} must hold exactly one bin/Linux64_x64/lib${_orv_library}_*_v3_*.so; "
            "found ${_orv_count}")
    endif()
    target_link_libraries(Orv::GenApi INTERFACE "${_orv_found}")
endforeach()
