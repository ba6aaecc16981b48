// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "measure.h"

#include <QTextStream>

#include <algorithm>
#include <cstdlib>
#include <malloc.h>

void tidyHeap()
{
    malloc_trim(0);
}

qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

double Samples::median() const
{
    if (m_samples.empty())
        return 0;
    std::vector<double> sorted = m_samples;
    std::sort(sorted.begin(), sorted.end());
    return sorted[sorted.size() / 2];
}

void Table::add(const QString &what, const QString &unit, double ours, double other, double bound)
{
    const double ratio = ours > 0 ? ours / other : 0;
    const auto number = [](double value) { return QString::number(value, 'f', 2); };
    QStringList row = {what, unit, number(ours), number(other), number(ratio), QString(), QString()};
    if (bound > 0) {
        row[5] = number(bound);
        row[6] = ratio <= bound ? QStringLiteral("ok") : QStringLiteral("missed");
    }
    m_rows.push_back(row);
}

void Table::print() const
{
    std::vector<QStringList> rows = m_rows;
    rows.insert(rows.begin(),
                {QStringLiteral("what"), QStringLiteral("unit"), QStringLiteral("ours"), QStringLiteral("other"),
                 QStringLiteral("ratio"), QStringLiteral("bound"), QString()});
    std::vector<int> widths(size_t(rows.front().size()), 0);
    for (const QStringList &row : rows) {
        for (int i = 0; i < row.size(); ++i)
            widths[size_t(i)] = std::max(widths[size_t(i)], int(row[i].size()));
    }
    QTextStream out(stdout);
    for (const QStringList &row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            const int width = widths[size_t(i)];
            out << (i < 2 || i == 6 ? row[i].leftJustified(width) : row[i].rightJustified(width)) << "  ";
        }
        out << '\n';
    }
}

void require(bool condition, const char *what)
{
    if (condition)
        return;
    QTextStream(stderr) << "orv-benchmark: " << what << '\n';
    std::exit(1);
}
