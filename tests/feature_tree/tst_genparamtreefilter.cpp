// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "featurecamera.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>

#include <QAbstractItemModelTester>

#include <utility>

namespace {

QByteArray feature(const char *name, const char *displayName, const char *rest = "")
{
    return QByteArray("<Integer Name=\"") + name + "\"><DisplayName>" + displayName + "</DisplayName><Value>1</Value>"
        + rest + "</Integer>";
}

/** Three levels of categories, features of every visibility, one that a switch makes not implemented. */
QByteArray description()
{
    return QByteArray("<Category Name=\"Root\"><pFeature>Image</pFeature><pFeature>Empty</pFeature>"
                      "<pFeature>Deep</pFeature><pFeature>Loose</pFeature></Category>"
                      "<Category Name=\"Image\"><pFeature>Exposure</pFeature><pFeature>Auto</pFeature>"
                      "<pFeature>Gain</pFeature><pFeature>GainAuto</pFeature><pFeature>Odd</pFeature></Category>"
                      "<Category Name=\"Empty\"><pFeature>Gamma</pFeature></Category>"
                      "<Category Name=\"Deep\"><pFeature>Inner</pFeature><pFeature>Top</pFeature></Category>"
                      "<Category Name=\"Inner\"><pFeature>Expert</pFeature><pFeature>Guru</pFeature></Category>")
        + feature("Exposure", "Exposure Time") + feature("Auto", "Auto Exposure") + feature("Gain", "Gain")
        + feature("GainAuto", "Gain Auto", "<pIsImplemented>Switch</pIsImplemented>")
        + feature("Odd", "a[b]c", "<Visibility>Expert</Visibility>") + feature("Gamma", "Gamma")
        + feature("Expert", "Expert Gain", "<Visibility>Expert</Visibility>")
        + feature("Guru", "Guru Gain", "<Visibility>Guru</Visibility>") + feature("Top", "Top")
        + feature("Loose", "Loose Exposure", "<Visibility>Invisible</Visibility>")
        + "<Integer Name=\"Switch\"><Value>1</Value></Integer>";
}

/** A category and two features of it stand in another category too, one of these twice. */
QByteArray twofoldDescription()
{
    return description().replace(
        "<Category Name=\"Empty\">",
        "<Category Name=\"Empty\"><pFeature>Exposure</pFeature>"
        "<pFeature>GainAuto</pFeature><pFeature>Image</pFeature><pFeature>Exposure</pFeature>");
}

/** The same with all of it first in a category that a switch shows. */
QByteArray hiddenFirstDescription()
{
    return twofoldDescription().replace("<Category Name=\"Root\">",
                                        "<Category Name=\"Root\"><pFeature>Attic</pFeature>")
        + "<Category Name=\"Attic\"><pIsImplemented>Never</pIsImplemented><pFeature>Image</pFeature>"
          "<pFeature>Top</pFeature></Category><Integer Name=\"Never\"><Value>0</Value></Integer>";
}

/** All rows with the names of those below in brackets. */
QString shape(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = shape(model, index);
        rows += index.data().toString() + (below.isEmpty() ? QString() : QLatin1Char('(') + below + QLatin1Char(')'));
    }
    return rows.join(QLatin1Char(','));
}

/** A filter over a camera's features, all of which have been asked for. */
struct Filtered : FeatureCamera
{
    explicit Filtered(const QByteArray &nodes)
        : FeatureCamera(nodes)
        , model(map.get(), nullptr)
    {
        proxy.setSourceModel(&model);
        rowsOf(proxy);
    }

    void setValue(const char *name, int value) const { node<GenApi::CIntegerPtr>(name)->SetValue(value); }

    GenParamTreeModel model;
    GenParamTreeVisibilityFilterProxyModel proxy{nullptr};
    QAbstractItemModelTester tester{&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace

class TestGenParamTreeFilter : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsByRule()
    {
        const struct
        {
            int level;
            const char *text;
            bool caseSensitive, wholeWords, nodeNames;
            const char *shape;
        } rows[] = {
            {0, "*", false, false, false, "Image(Exposure Time,Auto Exposure,Gain,Gain Auto),Empty(Gamma),Deep(Top)"},
            {1, "", false, false, false,
             "Image(Exposure Time,Auto Exposure,Gain,Gain Auto,a[b]c),Empty(Gamma),Deep(Inner(Expert Gain),Top)"},
            {2, "GAIN", false, false, false, "Image(Gain,Gain Auto),Empty,Deep(Inner(Expert Gain,Guru Gain))"},
            {0, "exp*", false, false, false, "Image(Exposure Time,Auto Exposure),Empty,Deep"},
            {0, "exp*", true, false, false, "Image,Empty,Deep"},
            {0, "Gain", false, true, false, "Image(Gain),Empty,Deep"},
            {0, "g?m*", false, true, false, "Image,Empty(Gamma),Deep"},
            {1, "[[]", false, false, false, "Image(a[b]c),Empty,Deep(Inner)"},
            {1, "Top", false, true, false, "Image,Empty,Deep(Inner,Top)"},
            {1, "odd", false, false, false, "Image,Empty,Deep(Inner)"},
            {1, "odd", false, false, true, "Image(a[b]c),Empty,Deep(Inner)"},
        };
        Filtered filtered(description());
        QCOMPARE(shape(filtered.proxy), QString::fromLatin1(rows[0].shape));
        for (const auto &row : rows) {
            filtered.proxy.setFilterVisibility(row.level);
            filtered.proxy.setFilterText(QString::fromLatin1(row.text));
            filtered.proxy.setCaseSensitive(row.caseSensitive);
            filtered.proxy.setWholeWords(row.wholeWords);
            filtered.proxy.setMatchesNodeNames(row.nodeNames);
            QCOMPARE(shape(filtered.proxy), QString::fromLatin1(row.shape));
        }
    }

    void announcesOnlyWhatChanges()
    {
        Filtered filtered(description());
        QSignalSpy going(&filtered.proxy, &GenParamTreeVisibilityFilterProxyModel::rowsAboutToGo);
        int layouts = 0;
        connect(&filtered.proxy, &QAbstractItemModel::layoutChanged, this, [&layouts] { ++layouts; });
        QSignalSpy data(&filtered.proxy, &QAbstractItemModel::dataChanged);
        QSignalSpy removed(&filtered.proxy, &QAbstractItemModel::rowsRemoved);
        for (const char *text : {"*a*", "*A*", "", "*"})
            filtered.proxy.setFilterText(QString::fromLatin1(text));
        QCOMPARE(layouts, 2);
        QCOMPARE(going.size(), 1);
        filtered.setValue("Gain", 5);
        QCOMPARE(data.first().first().toModelIndex().data().toString(), QStringLiteral("5"));
        filtered.setValue("Switch", 0);
        QCOMPARE(removed.size(), 1);
        QCOMPARE(going.size(), 2);
        QVERIFY(!shape(filtered.proxy).contains(QStringLiteral("Gain Auto")));
    }

    void showsWhatCannotBeRead()
    {
        Filtered filtered(description());
        for (const char *getter : {"GetVisibility", "GetAccessMode", "GetDisplayName", "GetPrincipalInterfaceType"}) {
            failGetter(*filtered.map, "Gain", getter);
            filtered.proxy.setFilterText(QStringLiteral("Ga*n"));
            filtered.proxy.invalidate();
            const QString shown = shape(filtered.proxy);
            clearFaults(*filtered.map);
            QVERIFY2(shown.startsWith(QLatin1String("Image(Gain,Gain Auto)")), getter);
        }
    }

    /** A feature or a category that two categories list: an index never comes to stand for another one. */
    void keepsTwofoldFeaturesApart()
    {
        Filtered filtered(twofoldDescription());
        QCOMPARE(shape(filtered.proxy),
                 QStringLiteral("Image(Exposure Time,Auto Exposure,Gain,Gain Auto),"
                                "Empty(Exposure Time,Gain Auto,Image(Exposure Time,Auto Exposure,Gain,Gain Auto),"
                                "Exposure Time,Gamma),Deep(Top)"));
        QVector<QPair<QPersistentModelIndex, QString>> kept;
        for (const QModelIndex &index : rowsOf(filtered.proxy))
            kept.append({index, index.data().toString()});
        for (const char *text : {"gain", "*", "top", "", "expo"}) {
            filtered.proxy.setFilterText(QString::fromLatin1(text));
            for (const auto &[index, name] : std::as_const(kept)) {
                if (index.isValid())
                    QCOMPARE(index.data().toString(), name);
            }
        }
    }

    void changesTwofoldFeaturesInAllPlaces()
    {
        Filtered filtered(twofoldDescription());
        const QModelIndex second = filtered.proxy.index(0, 1, filtered.proxy.index(1, 0));
        QSignalSpy data(&filtered.proxy, &QAbstractItemModel::dataChanged);
        QVERIFY(filtered.proxy.setData(second, 7));
        QStringList changed;
        for (const QList<QVariant> &arguments : data) {
            const QModelIndex index = arguments.first().toModelIndex();
            changed += QStringLiteral("%1/%2 %3")
                           .arg(index.parent().parent().data().toString(), index.parent().data().toString())
                           .arg(index.row());
        }
        changed.removeDuplicates();
        changed.sort();
        QCOMPARE(changed.join(QLatin1Char(',')), QStringLiteral("/Empty 0,/Empty 3,/Image 0,Empty/Image 0"));
        for (const int isThere : {0, 1}) {
            filtered.setValue("Switch", isThere);
            QCOMPARE(shape(filtered.proxy).count(QStringLiteral("Gain Auto")), 3 * isThere);
        }
    }

    /** What stands first where nobody sees it is found where it is seen, also by those who ask for nothing else. */
    void findsTwofoldFeaturesWhereTheyShow()
    {
        Filtered filtered(hiddenFirstDescription());
        GenParamTreeVisibilityFilterProxyModel &proxy = filtered.proxy;
        GenParamTreeVisibilityFilterProxyModel fresh(nullptr);
        fresh.setSourceModel(&filtered.model);
        for (const QModelIndex &index : rowsOf(proxy))
            QCOMPARE(proxy.mapFromSource(proxy.mapToSource(index)).data(), index.data());
        const QPersistentModelIndex gain(proxy.index(2, 0, proxy.index(0, 0)));
        QCOMPARE(gain.data().toString(), QStringLiteral("Gain"));
        QCOMPARE(fresh.mapFromSource(proxy.mapToSource(gain)).data(), gain.data());
        proxy.setFilterText(QStringLiteral("gain"));
        QVERIFY(gain.isValid() && gain.row() == 0);
        QSignalSpy data(&proxy, &QAbstractItemModel::dataChanged);
        filtered.setValue("Gain", 5);
        QCOMPARE(data.first().first().toModelIndex(), QModelIndex(gain).siblingAtColumn(1));
        for (const int isThere : {1, 0}) {
            filtered.setValue("Never", isThere);
            QTRY_COMPARE(shape(proxy).startsWith(QLatin1String("Attic")), bool(isThere));
            QVERIFY(gain.isValid() && gain.row() == 0);
        }
    }

    /** Also of rows that pass the filter themselves. */
    void invalidatesIndexesBelowACategoryThatGoes()
    {
        Filtered filtered(description().replace("<Category Name=\"Inner\">",
                                                "<Category Name=\"Inner\"><pIsImplemented>Switch</pIsImplemented>"));
        filtered.proxy.setFilterVisibility(2);
        const QModelIndex inner = filtered.proxy.index(0, 0, filtered.proxy.index(2, 0));
        const QPersistentModelIndex gain(filtered.proxy.index(0, 0, inner));
        QCOMPARE(gain.data().toString(), QStringLiteral("Expert Gain"));
        filtered.setValue("Switch", 0);
        filtered.proxy.invalidate(); // before the event loop runs, which would remove the row
        QVERIFY(!gain.isValid());
    }
};

ORV_TEST_MAIN(TestGenParamTreeFilter)
#include "tst_genparamtreefilter.moc"
