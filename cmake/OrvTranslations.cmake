# The languages that the library speaks besides English: catalogues in translations/, compiled by lrelease, carried in
# the library as resources below :/OrvCameraGuiApi/translations and installed beside it.

set(ORV_CATALOGUES) # .ts
set(ORV_TRANSLATIONS) # .qm
foreach(_orv_language de ja zh_CN)
    list(APPEND ORV_CATALOGUES ${PROJECT_SOURCE_DIR}/translations/OrvCameraGuiApi_${_orv_language}.ts)
    list(APPEND ORV_TRANSLATIONS ${PROJECT_BINARY_DIR}/translations/OrvCameraGuiApi_${_orv_language}.qm)
endforeach()

# What lupdate is told before "-ts FILES": contexts are found only where it can follow the includes.
set(ORV_LUPDATE_ARGUMENTS
    -silent -locations none -no-obsolete
    -I ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/src/OrvCameraGuiApi)

# Not part of any build: it writes into the source tree.
add_custom_target(orv-update-translations
    COMMAND Qt5::lupdate ${ORV_LUPDATE_ARGUMENTS} -ts ${ORV_CATALOGUES}
    COMMENT "Bringing the catalogues up to date with the source texts; new entries are marked unfinished"
    VERBATIM)

# orv_embed_translations(TARGET): compiles the catalogues and makes them resources of TARGET.
function(orv_embed_translations target)
    set_source_files_properties(${ORV_CATALOGUES}
        PROPERTIES OUTPUT_LOCATION ${PROJECT_BINARY_DIR}/translations)
    qt5_add_translation(compiled ${ORV_CATALOGUES} OPTIONS -silent)
    set(entries)
    foreach(translation IN LISTS compiled)
        get_filename_component(name ${translation} NAME)
        string(APPEND entries "    <file>${name}</file>\n")
    endforeach()
    configure_file(${PROJECT_SOURCE_DIR}/translations/translations.qrc.in
        ${PROJECT_BINARY_DIR}/translations/orvtranslations.qrc @ONLY)
    qt5_add_resources(resources ${PROJECT_BINARY_DIR}/translations/orvtranslations.qrc)
    target_sources(${target} PRIVATE ${resources})
endfunction()
