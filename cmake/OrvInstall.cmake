# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

# What is installed, and the archive of it. Components: Runtime, Development, Designer and Explorer are the library's;
# GenApi, GenApiDevelopment, GenApiTools, CameraApi and CameraApiDevelopment are the stand-ins', which a machine with a
# vendor's packages leaves out. debian/ makes packages of them.
include(CMakePackageConfigHelpers)

# Public headers of the GUI library; camera_api is installed whole, and of the feature dialogs every class.
file(GLOB ORV_DIALOG_HEADERS RELATIVE ${PROJECT_SOURCE_DIR}/src/OrvCameraGuiApi CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/src/OrvCameraGuiApi/camconfig/dialogs/orvcamconfig*dialog.h)
set(ORV_PUBLIC_HEADERS
    ${ORV_DIALOG_HEADERS}
    addresses/ip4validator.h
    camconfig/orvcamconfig.h
    camconfig/showcamconfigdialog.h
    device_selection/ip4validator.h
    device_selection/orvcameraselectordialog.h
    device_selection/selectcamera.h
    export.h
    feature_tree/creategenparamtreeview.h
    feature_tree/iorvgenparamtreeview.h
    feature_tree/orvfeaturetreetools.h
    feature_tree/orvgenparamtreeview.h
    widgets/int64validator.h
    widgets/qtorvdoubleslider.h
    widgets/qtorvdoublespinboxval.h
    widgets/qtorvgainslider.h
    widgets/qtorvslider.h
    widgets/qtorvsliderspinbox.h
    widgets/qtorvspinbox.h
    widgets/qtorvspinboxval.h
    widgets/qtorvspinboxval64.h
    windows/processevents.h
)

set(_orv_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake)
set(_orv_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(_orv_header_dir ${ORV_HEADERS}/OrvCameraGuiApi)
# A pkg-config file finds the prefix from its own place, so that an unpacked archive works anywhere.
file(RELATIVE_PATH _orv_pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})

# orv_from_prefix(VARIABLE DIRECTORY): the way from the prefix to DIRECTORY, which may be absolute.
function(orv_from_prefix variable directory)
    cmake_path(ABSOLUTE_PATH directory BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX})
    cmake_path(RELATIVE_PATH directory BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX})
    set(${variable} ${directory} PARENT_SCOPE)
endfunction()
orv_from_prefix(_orv_pc_libdir ${CMAKE_INSTALL_LIBDIR})
orv_from_prefix(_orv_pc_includedir ${CMAKE_INSTALL_INCLUDEDIR})
orv_from_prefix(_orv_pc_headers ${ORV_HEADERS})
orv_from_prefix(_orv_pc_genapi_headers ${ORV_GENAPI_HEADERS})

# orv_install_package(PACKAGE FILE COMPONENT): cmake/FILEConfig.cmake.in and cmake/FILE.pc.in as the package PACKAGE,
# with its targets and its version.
function(orv_install_package package file component)
    configure_file(cmake/${file}.pc.in ${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${_orv_pkgconfig_dir} COMPONENT ${component})
    set(directory ${_orv_cmake_dir}/${package})
    configure_package_config_file(cmake/${file}Config.cmake.in ${package}Config.cmake INSTALL_DESTINATION ${directory})
    write_basic_package_version_file(${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/${package}Config.cmake ${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
        DESTINATION ${directory} COMPONENT ${component})
    install(EXPORT ${package}Targets NAMESPACE Orv:: DESTINATION ${directory} COMPONENT ${component})
endfunction()

foreach(_orv_header IN LISTS ORV_PUBLIC_HEADERS)
    get_filename_component(_orv_room ${_orv_header} DIRECTORY)
    install(FILES src/OrvCameraGuiApi/${_orv_header} DESTINATION ${_orv_header_dir}/${_orv_room} COMPONENT Development)
endforeach()
# The contract between the library and a camera access library. The one that is here needs it as well, and has it in the
# same place with either Qt.
if(ORV_STAND_INS)
    install(DIRECTORY src/OrvCameraGuiApi/camera_api DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/OrvCameraGuiApi
        COMPONENT CameraApiDevelopment FILES_MATCHING PATTERN "*.h")
endif()
if(NOT ORV_STAND_INS OR ORV_QT_MAJOR EQUAL 6)
    install(DIRECTORY src/OrvCameraGuiApi/camera_api DESTINATION ${_orv_header_dir} COMPONENT Development
        FILES_MATCHING PATTERN "*.h")
endif()
install(TARGETS OrvCameraGuiApi EXPORT ${ORV_LIBRARY}Targets
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development)
install(FILES ${ORV_TRANSLATIONS} COMPONENT Runtime
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/${ORV_LIBRARY}/translations)

if(ORV_STAND_INS)
    install(TARGETS OrvGenApi EXPORT OrvGenApiTargets LIBRARY COMPONENT GenApi NAMELINK_COMPONENT GenApiDevelopment)
    install(DIRECTORY platform/GenApi/include/ DESTINATION ${ORV_GENAPI_HEADERS} COMPONENT GenApiDevelopment
        FILES_MATCHING PATTERN "*.h")
    orv_install_package(OrvGenApi OrvGenApi GenApiDevelopment)
    if(TARGET genapi_dump)
        install(TARGETS genapi_dump RUNTIME COMPONENT GenApiTools)
        install(FILES docs/man/genapi_dump.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT GenApiTools)
    endif()

    install(TARGETS OrvCameraApi EXPORT OrvCameraApiTargets
        LIBRARY COMPONENT CameraApi NAMELINK_COMPONENT CameraApiDevelopment)
    install(DIRECTORY platform/OrvCameraApi/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        COMPONENT CameraApiDevelopment FILES_MATCHING PATTERN "*.h")
    orv_install_package(OrvCameraApi OrvCameraApi CameraApiDevelopment)
    if(TARGET OrvCameraApiAravis)
        install(TARGETS OrvCameraApiAravis LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/OrvCameraApi COMPONENT CameraApi)
    endif()
    install(FILES platform/OrvCameraApi/udev/70-orv-usb3vision.rules DESTINATION ${ORV_UDEV_RULES_DIR}
        COMPONENT CameraApi)
    set(_orv_pc_requires "${ORV_QT}Widgets, OrvGenApi")
    set(_orv_pc_requires_private "OrvCameraApi")
else()
    # Where a vendor's GenApi lies is for the application to say.
    install(FILES cmake/OrvGenICam.cmake DESTINATION ${_orv_cmake_dir}/${ORV_LIBRARY} COMPONENT Development)
    set(_orv_pc_requires "${ORV_QT}Widgets")
    set(_orv_pc_requires_private "")
endif()
orv_install_package(${ORV_LIBRARY} OrvCameraGuiApi Development)

if(ORV_BUILD_DESIGNER)
    set(_orv_plugin_dir ${ORV_DESIGNER_PLUGIN_DIR})
    if(NOT _orv_plugin_dir)
        set(_orv_plugin_dir ${CMAKE_INSTALL_LIBDIR}/qt${ORV_QT_MAJOR}/plugins/designer)
    endif()
    # The library of the same prefix.
    orv_from_prefix(_orv_library_dir ${_orv_plugin_dir})
    file(RELATIVE_PATH _orv_library_dir ${CMAKE_INSTALL_PREFIX}/${_orv_library_dir} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(orvwidgets PROPERTIES INSTALL_RPATH "$ORIGIN/${_orv_library_dir}")
    install(TARGETS orvwidgets LIBRARY DESTINATION ${_orv_plugin_dir} COMPONENT Designer)
endif()
if(ORV_BUILD_APPS)
    install(TARGETS orv-camera-explorer RUNTIME COMPONENT Explorer)
    set(_orv_explorer_resources apps/explorer/resources)
    set(_orv_icon_dir ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor)
    install(FILES ${_orv_explorer_resources}/orv-camera-explorer.desktop
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications COMPONENT Explorer)
    install(FILES ${_orv_explorer_resources}/orv-camera-explorer.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/metainfo COMPONENT Explorer)
    install(FILES docs/man/orv-camera-explorer.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Explorer)
    install(FILES ${_orv_explorer_resources}/explorer.svg RENAME orv-camera-explorer.svg
        DESTINATION ${_orv_icon_dir}/scalable/apps COMPONENT Explorer)
    install(FILES ${_orv_explorer_resources}/explorer.png RENAME orv-camera-explorer.png
        DESTINATION ${_orv_icon_dir}/128x128/apps COMPONENT Explorer)
endif()

# The reference of the public headers: cmake --build DIR --target orv-reference writes it to DIR/reference/html.
find_program(_orv_doxygen doxygen)
if(_orv_doxygen)
    file(GLOB _orv_contract CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/OrvCameraGuiApi/camera_api/*.h)
    set(_orv_reference_headers ${ORV_PUBLIC_HEADERS})
    list(TRANSFORM _orv_reference_headers PREPEND ${PROJECT_SOURCE_DIR}/src/OrvCameraGuiApi/)
    list(APPEND _orv_reference_headers ${_orv_contract})
    list(APPEND _orv_reference_headers ${PROJECT_SOURCE_DIR}/docs/reference.dox)
    list(JOIN _orv_reference_headers " " _orv_reference_headers)
    configure_file(docs/Doxyfile.in Doxyfile @ONLY)
    add_custom_target(orv-reference
        COMMAND ${_orv_doxygen} ${PROJECT_BINARY_DIR}/Doxyfile
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        COMMENT "Writing the reference of the public headers"
        VERBATIM)
endif()

# One archive of everything.
if(PROJECT_IS_TOP_LEVEL)
    set(CPACK_PACKAGE_VENDOR "The OrvCameraGuiApi maintainers")
    set(CPACK_PACKAGE_CONTACT "OrvCameraGuiApi maintainers <maintainers@orvcameraguiapi.example>")
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
    set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
    set(CPACK_GENERATOR TGZ)
    set(CPACK_STRIP_FILES ON)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_BINARY_DIR}/packages)
    include(CPack)
endif()
