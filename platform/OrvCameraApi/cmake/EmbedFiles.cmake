# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

# cmake -DDIRECTORY=... -DFILES=... -DOUTPUT=... -P EmbedFiles.cmake: FILES of DIRECTORY as the text of a C++ source.
set(content "#include \"embeddedfiles.h\"\n\nnamespace OrvCameraApi {\n\nconst EmbeddedFile embeddedFiles[] = {\n")
foreach(name IN LISTS FILES)
    file(READ "${DIRECTORY}/${name}" text)
    string(APPEND content "{\"${name}\", R\"__orv__(${text})__orv__\"},\n")
endforeach()
string(APPEND content "};\n\nconst std::size_t embeddedFileCount = sizeof embeddedFiles / sizeof *embeddedFiles;\n\n")
string(APPEND content "} // namespace OrvCameraApi\n")
file(WRITE "${OUTPUT}" "${content}")
