# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

# Warnings and definitions for our own code, and the helpers that declare its targets.

add_library(orv_own_code INTERFACE)
if(PROJECT_IS_TOP_LEVEL)
    target_compile_options(orv_own_code INTERFACE -Wall -Wextra -Wshadow -Wconversion)
else() # our warnings are not theirs, and must not stop a build that makes errors of them
    target_compile_options(orv_own_code INTERFACE -w)
endif()
target_compile_definitions(orv_own_code INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

# Undefined symbols in a shared library are an error where it is linked. Two builds cannot have that: one with a
# sanitizer, whose runtime comes with the program, and one that leaves the camera access library to the application.
function(orv_forbid_undefined_symbols target)
    if(NOT ORV_SANITIZE)
        target_link_options(${target} PRIVATE LINKER:--no-undefined)
    endif()
endfunction()

# orv_export_only(TARGET VERSION NAME...): all that others see of the module TARGET are the functions NAME..., with the
# version VERSION.
function(orv_export_only target version)
    list(JOIN ARGN "; " names)
    file(CONFIGURE OUTPUT ${target}.map CONTENT "${version} { global: ${names}; local: *; };\n" @ONLY)
    target_link_options(${target} PRIVATE LINKER:--version-script=${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
endfunction()

# orv_plant_fault(COPY SOURCE RIGHT WRONG): writes a copy of SOURCE in which WRONG stands in place of RIGHT and sets the
# variable COPY to its path. For ORV_PLANT_FAULTS only.
function(orv_plant_fault copy source right wrong)
    file(READ ${source} text)
    string(FIND "${text}" "${right}" found)
    if(found EQUAL -1)
        message(FATAL_ERROR "${source} has no \"${right}\" that a fault could take the place of")
    endif()
    string(REPLACE "${right}" "${wrong}" text "${text}")
    get_filename_component(name ${source} NAME)
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/faulty/${name} CONTENT "${text}")
    set(${copy} ${CMAKE_CURRENT_BINARY_DIR}/faulty/${name} PARENT_SCOPE)
endfunction()
