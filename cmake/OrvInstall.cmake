# What is installed, and how it is packed. Components: Runtime, Development, Designer, Explorer, StandIns. The stand-ins
# are a component of their own, which a machine with a vendor's packages leaves out.
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

set(_orv_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/OrvCameraGuiApi)
set(_orv_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(_orv_header_dir ${CMAKE_INSTALL_INCLUDEDIR}/OrvCameraGuiApi)

# A pkg-config file finds the prefix from its own place, so that an unpacked archive works anywhere.
file(RELATIVE_PATH _orv_pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})

foreach(_orv_header IN LISTS ORV_PUBLIC_HEADERS)
    get_filename_component(_orv_room ${_orv_header} DIRECTORY)
    install(FILES src/OrvCameraGuiApi/${_orv_header} DESTINATION ${_orv_header_dir}/${_orv_room} COMPONENT Development)
endforeach()
install(DIRECTORY src/OrvCameraGuiApi/camera_api DESTINATION ${_orv_header_dir} COMPONENT Development
    FILES_MATCHING PATTERN "*.h")
install(TARGETS OrvCameraGuiApi EXPORT OrvCameraGuiApiTargets
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development)
install(FILES ${ORV_TRANSLATIONS} COMPONENT Runtime
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/OrvCameraGuiApi/translations)
install(EXPORT OrvCameraGuiApiTargets NAMESPACE Orv:: DESTINATION ${_orv_package_dir} COMPONENT Development)

if(ORV_STAND_INS)
    install(TARGETS OrvGenApi OrvCameraApi EXPORT OrvStandInsTargets LIBRARY COMPONENT StandIns)
    install(EXPORT OrvStandInsTargets NAMESPACE Orv:: DESTINATION ${_orv_package_dir} COMPONENT StandIns)
    install(DIRECTORY platform/GenApi/include/ platform/OrvCameraApi/include/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT StandIns FILES_MATCHING PATTERN "*.h")
    if(TARGET OrvCameraApiAravis)
        install(TARGETS OrvCameraApiAravis LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT StandIns)
    endif()
    install(TARGETS genapi_dump RUNTIME COMPONENT StandIns)
    install(FILES platform/OrvCameraApi/udev/70-orv-usb3vision.rules DESTINATION lib/udev/rules.d COMPONENT StandIns)
    foreach(_orv_module OrvGenApi OrvCameraApi)
        configure_file(cmake/${_orv_module}.pc.in ${_orv_module}.pc @ONLY)
        install(FILES ${PROJECT_BINARY_DIR}/${_orv_module}.pc DESTINATION ${_orv_pkgconfig_dir} COMPONENT StandIns)
    endforeach()
    set(_orv_pc_requires "Qt5Widgets, OrvGenApi")
    set(_orv_pc_requires_private "OrvCameraApi")
else()
    # Where a vendor's GenApi lies is for the application to say.
    install(FILES cmake/OrvGenICam.cmake DESTINATION ${_orv_package_dir} COMPONENT Development)
    set(_orv_pc_requires "Qt5Widgets")
    set(_orv_pc_requires_private "")
endif()

configure_file(cmake/OrvCameraGuiApi.pc.in OrvCameraGuiApi.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/OrvCameraGuiApi.pc DESTINATION ${_orv_pkgconfig_dir} COMPONENT Development)
configure_package_config_file(cmake/OrvCameraGuiApiConfig.cmake.in OrvCameraGuiApiConfig.cmake
    INSTALL_DESTINATION ${_orv_package_dir})
write_basic_package_version_file(OrvCameraGuiApiConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
        ${PROJECT_BINARY_DIR}/OrvCameraGuiApiConfig.cmake
        ${PROJECT_BINARY_DIR}/OrvCameraGuiApiConfigVersion.cmake
    DESTINATION ${_orv_package_dir} COMPONENT Development)

if(ORV_BUILD_DESIGNER)
    install(TARGETS orvwidgets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt5/plugins/designer COMPONENT Designer)
endif()
if(ORV_BUILD_APPS)
    install(TARGETS orv-camera-explorer RUNTIME COMPONENT Explorer)
    set(_orv_explorer_resources apps/explorer/resources)
    set(_orv_icon_dir ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor)
    install(FILES ${_orv_explorer_resources}/orv-camera-explorer.desktop
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications COMPONENT Explorer)
    install(FILES ${_orv_explorer_resources}/explorer.svg RENAME orv-camera-explorer.svg
        DESTINATION ${_orv_icon_dir}/scalable/apps COMPONENT Explorer)
    install(FILES ${_orv_explorer_resources}/explorer.png RENAME orv-camera-explorer.png
        DESTINATION ${_orv_icon_dir}/128x128/apps COMPONENT Explorer)
endif()
# Debian packages, one a component, and one archive of everything.
set(CPACK_PACKAGE_VENDOR "The OrvCameraGuiApi maintainers")
set(CPACK_PACKAGE_CONTACT "OrvCameraGuiApi maintainers <maintainers@orvcameraguiapi.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL Runtime Development)
if(ORV_BUILD_DESIGNER)
    list(APPEND CPACK_COMPONENTS_ALL Designer)
endif()
if(ORV_BUILD_APPS)
    list(APPEND CPACK_COMPONENTS_ALL Explorer)
endif()
if(ORV_STAND_INS)
    list(APPEND CPACK_COMPONENTS_ALL StandIns)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The packages need one another's libraries, which no package on the building machine provides yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME liborvcameraguiapi1)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liborvcameraguiapi-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME orvcameraguiapi-designer)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_EXPLORER_PACKAGE_NAME orv-camera-explorer)
set(CPACK_DEBIAN_EXPLORER_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_STANDINS_PACKAGE_NAME orvcameraguiapi-standins)
set(CPACK_DEBIAN_STANDINS_PACKAGE_SECTION libs)
# Debian's place for a license is the directory of the package; two packages must not hold the same file.
foreach(_orv_component Runtime Development Designer Explorer StandIns)
    string(TOUPPER ${_orv_component} _orv_upper)
    install(FILES LICENSE RENAME copyright COMPONENT ${_orv_component}
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${_orv_upper}_PACKAGE_NAME})
endforeach()
set(_orv_same_version "(= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "liborvcameraguiapi1 ${_orv_same_version}, qtbase5-dev")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "liborvcameraguiapi1 ${_orv_same_version}")
set(CPACK_DEBIAN_EXPLORER_PACKAGE_DEPENDS "liborvcameraguiapi1 ${_orv_same_version}")
set(CPACK_DEBIAN_EXPLORER_PACKAGE_RECOMMENDS "qttranslations5-l10n") # Qt's own texts in other languages
if(ORV_STAND_INS)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "orvcameraguiapi-standins ${_orv_same_version}")
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", orvcameraguiapi-standins ${_orv_same_version}")
    string(APPEND CPACK_DEBIAN_EXPLORER_PACKAGE_DEPENDS ", orvcameraguiapi-standins ${_orv_same_version}")
endif()
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The library that applications link.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake package and pkg-config file of the library.")
set(CPACK_COMPONENT_DESIGNER_DESCRIPTION "The value-entry widgets as a plug-in for Qt Designer and QUiLoader.")
set(CPACK_COMPONENT_EXPLORER_DESCRIPTION "An application that shows every window and widget of the library.")
set(CPACK_COMPONENT_STANDINS_DESCRIPTION
    "Stand-ins for GenApi and for a camera access library, with simulated cameras, libraries and headers.")
include(CPack)
