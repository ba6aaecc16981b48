# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

# The Qt that everything here is built with, ORV_QT: Qt5 or Qt6. The libraries for the two are installed side by side:
# ORV_LIBRARY is the name of the library and of its packages for CMake and pkg-config, ORV_HEADERS the folder of its
# headers below the prefix, ORV_SYMBOLS the version of its symbols. The target is Orv::CameraGuiApi in either.

if(TARGET Qt6::Core AND NOT TARGET Qt5::Core) # the Qt of the project that this one is a part of
    set(_orv_qt_found 6)
else()
    set(_orv_qt_found 5)
endif()
set(ORV_QT_MAJOR ${_orv_qt_found} CACHE STRING "Major version of Qt: 5 (5.15) or 6 (6.4 or newer)")
set_property(CACHE ORV_QT_MAJOR PROPERTY STRINGS 5 6)

if(ORV_QT_MAJOR STREQUAL "5")
    set(ORV_QT_OLDEST 5.15)
    set(ORV_SYMBOLS ORV_CAMERA_GUI_API_1)
    set(ORV_LIBRARY OrvCameraGuiApi)
    set(ORV_HEADERS ${CMAKE_INSTALL_INCLUDEDIR})
elseif(ORV_QT_MAJOR STREQUAL "6")
    set(ORV_QT_OLDEST 6.4)
    set(ORV_SYMBOLS ORV_CAMERA_GUI_API_QT6_1) # its own: a process that happens to load both finds the one it was linked to
    set(ORV_LIBRARY OrvCameraGuiApiQt6)
    set(ORV_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/OrvCameraGuiApiQt6)
else()
    message(FATAL_ERROR "ORV_QT_MAJOR is ${ORV_QT_MAJOR}; 5 and 6 are possible")
endif()
set(ORV_QT Qt${ORV_QT_MAJOR})

find_package(${ORV_QT} ${ORV_QT_OLDEST} REQUIRED COMPONENTS Core Gui Widgets LinguistTools)
