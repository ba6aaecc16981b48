#include "featurecamera.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>
#include <OrvCameraGuiApi/feature_tree/wildcardmatcher.h>
#include <OrvGenApi/testing/faults.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

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

/** A category and two features of it stand in another category too. */
QByteArray twofoldDescription()
{
    return description().replace("<Category Name=\"Empty\">",
                                 "<Category Name=\"Empty\"><pFeature>Exposure</pFeature>"
                                 "<pFeature>GainAuto</pFeature><pFeature>Image</pFeature>");
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

QString randomText(QRandomGenerator &random, const QString &letters, int longest)
{
    QString text;
    for (int length = random.bounded(longest + 1); length > 0; --length)
        text += letters[random.bounded(letters.size())];
    return text;
}

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
            bool caseSensitive, wholeWords;
            const char *shape;
        } rows[] = {
            {0, "*", false, false, "Image(Exposure Time,Auto Exposure,Gain,Gain Auto),Empty(Gamma),Deep(Top)"},
            {1, "", false, false,
             "Image(Exposure Time,Auto Exposure,Gain,Gain Auto,a[b]c),Empty(Gamma),Deep(Inner(Expert Gain),Top)"},
            {2, "GAIN", false, false, "Image(Gain,Gain Auto),Empty,Deep(Inner(Expert Gain,Guru Gain))"},
            {0, "exp*", false, false, "Image(Exposure Time,Auto Exposure),Empty,Deep"},
            {0, "exp*", true, false, "Image,Empty,Deep"},
            {0, "Gain", false, true, "Image(Gain),Empty,Deep"},
            {0, "g?m*", false, true, "Image,Empty(Gamma),Deep"},
            {1, "[[]", false, false, "Image(a[b]c),Empty,Deep(Inner)"},
            {1, "Top", false, true, "Image,Empty,Deep(Inner,Top)"},
        };
        const FeatureCamera camera(description());
        GenParamTreeModel model(camera.map.get(), nullptr);
        GenParamTreeVisibilityFilterProxyModel proxy(nullptr);
        proxy.setSourceModel(&model);
        const QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(shape(proxy), QString::fromLatin1(rows[0].shape));
        for (const auto &row : rows) {
            proxy.setFilterVisibility(row.level);
            proxy.setFilterText(QString::fromLatin1(row.text));
            proxy.setCaseSensitive(row.caseSensitive);
            proxy.setWholeWords(row.wholeWords);
            QCOMPARE(shape(proxy), QString::fromLatin1(row.shape));
        }
    }

    void answersAsTheRegularExpression()
    {
        QRandomGenerator random(1);
        const QString letters =
            QStringLiteral("aAbB*?[]^-\\.$(){}|+ s\u017fkK\u212a\u00df\u1e9e\u0130i\u0131\u03a3\u03c2\u03c3"
                           "\u66dd\u5149\u00b5\U00010400\U00010428");
        for (int i = 0; i < 60000; ++i) {
            const QString pattern = randomText(random, letters, i % 2 ? 3 : 7);
            const QString text = randomText(random, letters, 8);
            const Qt::CaseSensitivity sensitivity = i % 3 ? Qt::CaseInsensitive : Qt::CaseSensitive;
            QRegExp expected(pattern, sensitivity, QRegExp::Wildcard);
            WildcardMatcher matcher;
            matcher.setPattern(pattern);
            matcher.setCaseSensitivity(sensitivity);
            const QByteArray what = (pattern + QLatin1String(" in ") + text).toUtf8();
            QVERIFY2(matcher.isIn(text) == (expected.indexIn(text) >= 0), what);
            QVERIFY2(matcher.isAll(text) == expected.exactMatch(text), what);
            if (matcher.matchesAll())
                QVERIFY(matcher.isIn(text));
        }
    }

    void announcesOnlyWhatChanges()
    {
        const FeatureCamera camera(description());
        GenParamTreeModel model(camera.map.get(), nullptr);
        GenParamTreeVisibilityFilterProxyModel proxy(nullptr);
        proxy.setSourceModel(&model);
        rowsOf(proxy);
        int layouts = 0;
        connect(&proxy, &QAbstractItemModel::layoutChanged, this, [&layouts] { ++layouts; });
        QSignalSpy data(&proxy, &QAbstractItemModel::dataChanged);
        QSignalSpy removed(&proxy, &QAbstractItemModel::rowsRemoved);
        proxy.setFilterText(QStringLiteral("*a*"));
        const int narrowed = layouts;
        proxy.setFilterText(QStringLiteral("*A*"));
        QCOMPARE(narrowed, 1);
        QCOMPARE(layouts, 1);
        camera.node<GenApi::CIntegerPtr>("Gain")->SetValue(5);
        QCOMPARE(data.first().first().toModelIndex().data().toString(), QStringLiteral("5"));
        camera.node<GenApi::CIntegerPtr>("Switch")->SetValue(0);
        QCOMPARE(removed.size(), 1);
        QVERIFY(!shape(proxy).contains(QStringLiteral("Gain Auto")));
    }

    void showsWhatCannotBeRead()
    {
        const FeatureCamera camera(description());
        GenParamTreeModel model(camera.map.get(), nullptr);
        for (const char *getter : {"GetVisibility", "GetAccessMode", "GetDisplayName", "GetPrincipalInterfaceType"}) {
            OrvGenApi::testing::failGetter(*camera.map, "Gain", getter);
            GenParamTreeVisibilityFilterProxyModel proxy(nullptr);
            proxy.setSourceModel(&model);
            proxy.setFilterText(QStringLiteral("Ga*n"));
            QVERIFY2(shape(proxy).startsWith(QLatin1String("Image(Gain,Gain Auto)")), qPrintable(shape(proxy)));
            OrvGenApi::testing::clearFaults(*camera.map);
        }
    }

    /** A feature or a category that two categories list: an index never comes to stand for another one. */
    void keepsTwofoldFeaturesApart()
    {
        const FeatureCamera camera(twofoldDescription());
        GenParamTreeModel model(camera.map.get(), nullptr);
        GenParamTreeVisibilityFilterProxyModel proxy(nullptr);
        proxy.setSourceModel(&model);
        QCOMPARE(
            shape(proxy),
            QStringLiteral("Image(Exposure Time,Auto Exposure,Gain,Gain Auto),"
                           "Empty(Exposure Time,Gain Auto,Image(Exposure Time,Auto Exposure,Gain,Gain Auto),Gamma),"
                           "Deep(Top)"));
        QVector<QPair<QPersistentModelIndex, QString>> kept;
        for (const QModelIndex &index : rowsOf(proxy))
            kept.append({index, index.siblingAtColumn(0).data().toString()});
        for (const char *text : {"gain", "*", "top", "", "expo"}) {
            proxy.setFilterText(QString::fromLatin1(text));
            proxy.invalidate();
            for (const auto &[index, name] : qAsConst(kept)) {
                const QModelIndex survivor = index;
                if (survivor.isValid())
                    QCOMPARE(survivor.siblingAtColumn(0).data().toString(), name);
            }
        }
    }

    void changesTwofoldFeaturesInBothPlaces()
    {
        const FeatureCamera camera(twofoldDescription());
        GenParamTreeModel model(camera.map.get(), nullptr);
        GenParamTreeVisibilityFilterProxyModel proxy(nullptr);
        proxy.setSourceModel(&model);
        rowsOf(proxy);
        const QModelIndex second = proxy.index(0, 1, proxy.index(1, 0));
        QSignalSpy data(&proxy, &QAbstractItemModel::dataChanged);
        QVERIFY(proxy.setData(second, 7));
        QSet<QString> changed;
        for (const QList<QVariant> &arguments : data) {
            const QModelIndex index = arguments.first().toModelIndex();
            if (index.data().toString() == QLatin1String("7"))
                changed += index.parent().data().toString();
        }
        QCOMPARE(changed, QSet<QString>({QStringLiteral("Image"), QStringLiteral("Empty")}));
        camera.node<GenApi::CIntegerPtr>("Switch")->SetValue(0);
        QVERIFY(!shape(proxy).contains(QStringLiteral("Gain Auto")));
        camera.node<GenApi::CIntegerPtr>("Switch")->SetValue(1);
        QCOMPARE(shape(proxy).count(QStringLiteral("Gain Auto")), 3);
    }

    /** What stands first where nobody sees it is found where it is seen. */
    void findsTwofoldFeaturesWhereTheyShow()
    {
        QByteArray hidden = twofoldDescription();
        hidden.replace("<Category Name=\"Root\">", "<Category Name=\"Root\"><pFeature>Attic</pFeature>");
        hidden += "<Category Name=\"Attic\"><pIsImplemented>Never</pIsImplemented><pFeature>Image</pFeature>"
                  "<pFeature>Top</pFeature></Category><Integer Name=\"Never\"><Value>0</Value></Integer>";
        const FeatureCamera camera(hidden);
        GenParamTreeModel model(camera.map.get(), nullptr);
        GenParamTreeVisibilityFilterProxyModel proxy(nullptr);
        proxy.setSourceModel(&model);
        const QModelIndexList rows = rowsOf(proxy);
        for (const QModelIndex &index : rows) {
            const QModelIndex name = index.siblingAtColumn(0);
            QVERIFY(!name.parent().isValid() || rows.contains(name.parent())
                    || rows.contains(name.parent().siblingAtColumn(1)));
            QCOMPARE(proxy.mapFromSource(proxy.mapToSource(name)).data(), name.data());
        }
        const QPersistentModelIndex gain(proxy.index(2, 0, proxy.index(0, 0)));
        QCOMPARE(gain.data().toString(), QStringLiteral("Gain"));
        proxy.setFilterText(QStringLiteral("gain"));
        QVERIFY(gain.isValid() && gain.row() == 0);
        QSignalSpy data(&proxy, &QAbstractItemModel::dataChanged);
        camera.node<GenApi::CIntegerPtr>("Gain")->SetValue(5);
        QCOMPARE(data.first().first().toModelIndex(), QModelIndex(gain).siblingAtColumn(1));
        for (const int isThere : {1, 0}) {
            camera.node<GenApi::CIntegerPtr>("Never")->SetValue(isThere);
            QTRY_COMPARE(shape(proxy).startsWith(QLatin1String("Attic")), bool(isThere));
            QVERIFY(gain.isValid() && gain.row() == 0);
        }
    }

    void goesWithItsSource()
    {
        const FeatureCamera camera(description());
        GenParamTreeVisibilityFilterProxyModel proxy(nullptr);
        QCOMPARE(proxy.rowCount(), 0);
        proxy.setFilterText(QStringLiteral("a"));
        {
            GenParamTreeModel model(camera.map.get(), nullptr);
            proxy.setSourceModel(&model);
            QCOMPARE(proxy.rowCount(), 3);
        }
        QCOMPARE(proxy.rowCount(), 0);
        proxy.setFilterText(QStringLiteral("b"));
        proxy.setSourceModel(nullptr);
        QCOMPARE(proxy.rowCount(), 0);
    }
};

ORV_TEST_MAIN(TestGenParamTreeFilter)
#include "tst_genparamtreefilter.moc"
