// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Runs every file of the directories that are given through a fuzzer: how the corpora are tested in every build.

#include "fuzzer.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const QFileInfoList files = QDir(QFile::decodeName(argv[i])).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo &info : files) {
            QFile file(info.filePath());
            FUZZ_REQUIRE(file.open(QIODevice::ReadOnly));
            const QByteArray content = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(content.constData()), std::size_t(content.size()));
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
