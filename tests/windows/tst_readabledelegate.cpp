// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"

#include <OrvCameraGuiApi/windows/readabledelegate.h>

#include <QPainter>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QTreeView>

namespace {

const QString texts[] = {
    QString(),
    QStringLiteral("Exposure Time (jgÅ)"),
    QStringLiteral("a\tb"),
    QStringLiteral("two\nlines"),
    QStringLiteral("\u05d0\u05d1 12 abc"), // to the left
    QStringLiteral("nobody can read all of this in a cell that is so narrow"),
};

/** A view's item without a place in it, painted for a screen of that density. */
QImage painted(const QStyledItemDelegate &delegate, const QTreeView &view, const QString &text,
               const QStyleOptionViewItem &option, qreal density)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), text);
    model.setData(model.index(0, 0), int(option.displayAlignment), Qt::TextAlignmentRole);
    QStyleOptionViewItem cell = option;
    cell.initFrom(&view);
    cell.widget = &view;
    cell.rect = option.rect;
    cell.state = option.state;
    cell.direction = option.direction;
    QImage image(option.rect.size() * density * 2, QImage::Format_RGB32);
    image.setDevicePixelRatio(density);
    image.fill(Qt::white);
    QPainter painter(&image);
    delegate.paint(&painter, cell, model.index(0, 0));
    return image;
}

} // namespace

class TestReadableDelegate : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paintsAsTheStyleDoes_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("height");
        QTest::addColumn<double>("density");
        QTest::newRow("Fusion") << "Fusion" << 19 << 1.0;
        QTest::newRow("Fusion, even") << "Fusion" << 24 << 1.0;
        QTest::newRow("Fusion, low") << "Fusion" << 9 << 1.0;
        QTest::newRow("Fusion, dense") << "Fusion" << 19 << 2.0;
        QTest::newRow("Windows") << "Windows" << 19 << 1.0;
    }

    void paintsAsTheStyleDoes()
    {
        QFETCH(QString, style);
        QFETCH(int, height);
        QFETCH(double, density);
        const std::unique_ptr<QStyle> chosen(QStyleFactory::create(style));
        QTreeView view;
        view.setStyle(chosen.get());
        const ReadableDelegate ours;
        const QStyledItemDelegate qts;
        QStyleOptionViewItem option;
        option.rect = QRect(7, 3, 150, height);
        constexpr auto enabled = QStyle::State_Enabled | QStyle::State_Active;
        const QStyle::State states[] = {enabled, QStyle::State_Enabled, QStyle::State_None,
                                        enabled | QStyle::State_Selected, enabled | QStyle::State_HasFocus};
        for (const QString &text : texts) {
            for (const QStyle::State state : states) {
                for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                    for (const Qt::Alignment alignment :
                         {Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignTop}) {
                        option.state = state;
                        option.direction = direction;
                        option.displayAlignment = alignment;
                        const QImage image = painted(ours, view, text, option, density);
                        const bool isSame = image == painted(qts, view, text, option, density);
                        QVERIFY2(isSame,
                                 qPrintable(QStringLiteral("%1, %2, %3, %4")
                                                .arg(text)
                                                .arg(int(state))
                                                .arg(direction)
                                                .arg(int(alignment))));
                        QVERIFY(image != painted(ours, view, QString(), option, density) || text.isEmpty()
                                || height < 15);
                    }
                }
            }
        }
    }
};

ORV_TEST_MAIN(TestReadableDelegate)
#include "tst_readabledelegate.moc"
