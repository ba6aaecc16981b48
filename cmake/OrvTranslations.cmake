# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

# The languages that the library and the explorer speak besides English: catalogues in translations/, compiled by
# lrelease, and carried as resources below :/CATALOGUE/translations. Those of the library are installed beside it, too.

# orv_list_catalogues(NAME PREFIX): the catalogues NAME_de.ts and so on as PREFIX_CATALOGUES, what lrelease makes of
# them as PREFIX_TRANSLATIONS.
function(orv_list_catalogues name prefix)
    set(catalogues)
    set(translations)
    foreach(language de ja zh_CN)
        list(APPEND catalogues ${PROJECT_SOURCE_DIR}/translations/${name}_${language}.ts)
        list(APPEND translations ${PROJECT_BINARY_DIR}/translations/${name}_${language}.qm)
    endforeach()
    set(${prefix}_CATALOGUES ${catalogues} PARENT_SCOPE)
    set(${prefix}_TRANSLATIONS ${translations} PARENT_SCOPE)
endfunction()

orv_list_catalogues(OrvCameraGuiApi ORV)
orv_list_catalogues(orv-camera-explorer ORV_EXPLORER)

# What lupdate is told before "-ts FILES": contexts are found only where it can follow the includes.
set(_orv_lupdate -silent -locations none -no-obsolete -I ${PROJECT_SOURCE_DIR}/src)
set(ORV_LUPDATE_ARGUMENTS ${_orv_lupdate} ${PROJECT_SOURCE_DIR}/src/OrvCameraGuiApi)
set(ORV_EXPLORER_LUPDATE_ARGUMENTS ${_orv_lupdate} ${PROJECT_SOURCE_DIR}/apps/explorer)

# Not part of any build: it writes into the source tree.
add_custom_target(orv-update-translations
    COMMAND ${ORV_QT}::lupdate ${ORV_LUPDATE_ARGUMENTS} -ts ${ORV_CATALOGUES}
    COMMAND ${ORV_QT}::lupdate ${ORV_EXPLORER_LUPDATE_ARGUMENTS} -ts ${ORV_EXPLORER_CATALOGUES}
    COMMENT "Bringing the catalogues up to date with the source texts; new entries are marked unfinished"
    VERBATIM)

# orv_embed_translations(TARGET NAME CATALOGUES...): compiles the catalogues and makes them resources of TARGET.
function(orv_embed_translations target name)
    set_source_files_properties(${ARGN} PROPERTIES OUTPUT_LOCATION ${PROJECT_BINARY_DIR}/translations)
    cmake_language(CALL qt${ORV_QT_MAJOR}_add_translation compiled ${ARGN} OPTIONS -silent)
    set(entries)
    foreach(translation IN LISTS compiled)
        get_filename_component(file ${translation} NAME)
        string(APPEND entries "    <file>${file}</file>\n")
    endforeach()
    set(collection ${PROJECT_BINARY_DIR}/translations/${name}.qrc)
    configure_file(${PROJECT_SOURCE_DIR}/translations/translations.qrc.in ${collection} @ONLY)
    cmake_language(CALL qt${ORV_QT_MAJOR}_add_resources resources ${collection} OPTIONS ${CMAKE_AUTORCC_OPTIONS})
    target_sources(${target} PRIVATE ${resources})
endfunction()
