// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "benchmarks.h"

#include <QFileInfo>

#include <pugixml.hpp>

void measureLoading(Table &table, const QString &path, int repetitions)
{
    const std::string file = path.toStdString();
    Samples ours;
    Samples parse;
    Samples kept;
    for (int i = 0; i < repetitions; ++i) {
        const qint64 before = heapInUse();
        std::unique_ptr<OrvGenApi::NodeMap> map;
        ours.add(millisecondsOf([&] { map = OrvGenApi::NodeMap::fromFile(file); }));
        kept.add(double(heapInUse() - before));
        map.reset();

        pugi::xml_document document;
        bool isParsed = false;
        parse.add(millisecondsOf([&] { isParsed = bool(document.load_file(file.c_str())); }));
        require(isParsed, "pugixml cannot parse the file");
    }
    const QString name = QFileInfo(path).fileName();
    table.add(QStringLiteral("load %1, beside its parse").arg(name), QStringLiteral("ms"), ours.median(),
              parse.median(), 40);
    table.add(QStringLiteral("heap kept of %1, beside its size").arg(name), QStringLiteral("KiB"), kept.median() / 1024,
              double(QFileInfo(path).size()) / 1024, 6);
}
