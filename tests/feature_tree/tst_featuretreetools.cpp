// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <OrvCameraGuiApi/feature_tree/orvfeaturetreetools.h>

#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QWhatsThisClickedEvent>

#include <functional>
#include <utility>

using OrvGui::OrvFeatureTreeTools;

namespace {

QByteArray reg(const char *name, int address, const char *mode = "RW", const char *caching = "WriteThrough",
               const char *more = "")
{
    return QByteArray("<IntReg Name=\"") + name + "\"><Address>" + QByteArray::number(address)
        + "</Address><Length>8</Length><AccessMode>" + mode + "</AccessMode><Cachable>" + caching + "</Cachable>" + more
        + "<pPort>Device</pPort><Sign>Signed</Sign><Endianess>BigEndian</Endianess></IntReg>";
}

/** A camera whose features depend on one another; "Twice" is listed in two categories. */
QByteArray nodes()
{
    return R"(
<Category Name="Root"><pFeature>Image</pFeature><pFeature>Trigger</pFeature><pFeature>Again</pFeature></Category>
<Category Name="Image"><pFeature>Width</pFeature><pFeature>Twice</pFeature><pFeature>Inner</pFeature></Category>
<Category Name="Inner"><pFeature>Gain</pFeature><pFeature>Temperature</pFeature><pFeature>Expert</pFeature></Category>
<Category Name="Trigger"><pFeature>Selector</pFeature><pFeature>Delay</pFeature><pFeature>Fire</pFeature>
  <pFeature>TLParamsLocked</pFeature><pFeature>Switch</pFeature><pFeature>Both</pFeature><pFeature>Mode</pFeature>
  <pFeature>Indexed</pFeature></Category>
<Category Name="Again"><pFeature>Twice</pFeature><pFeature>Inner</pFeature></Category>
<Integer Name="Width"><DisplayName>Image &amp; Width</DisplayName><pIsLocked>Streaming</pIsLocked>
  <pValue>WidthReg</pValue></Integer>
<IntSwissKnife Name="Streaming"><pVariable Name="L">TLParamsLocked</pVariable><Formula>L</Formula></IntSwissKnife>
<Integer Name="Both"><pIsLocked>Either</pIsLocked><pValue>GainReg</pValue></Integer>
<IntSwissKnife Name="Either"><pVariable Name="L">TLParamsLocked</pVariable><pVariable Name="S">Switch</pVariable>
  <Formula>L || S</Formula></IntSwissKnife>
<Integer Name="Mode"><Value>0</Value></Integer>
<Integer Name="Indexed"><pIndex>Mode</pIndex><pValueIndexed Index="1">Shut</pValueIndexed>
  <pValueDefault>TemperatureReg</pValueDefault></Integer>
<Integer Name="Shut"><pIsLocked>Always</pIsLocked><pValue>GainReg</pValue></Integer>
<IntSwissKnife Name="Always"><Formula>1</Formula></IntSwissKnife>
<Integer Name="Twice"><pValue>Hidden</pValue></Integer>
<Integer Name="Hidden"><pIsLocked>Switch</pIsLocked><pValue>TwiceReg</pValue></Integer>
<Integer Name="Gain"><pIsAvailable>Switch</pIsAvailable><pValue>GainReg</pValue></Integer>
<Integer Name="Temperature"><pValue>TemperatureReg</pValue></Integer>
<Integer Name="Expert"><Visibility>Expert</Visibility><Value>3</Value></Integer>
<Enumeration Name="Selector"><EnumEntry Name="A"><Value>0</Value></EnumEntry><EnumEntry Name="B"><Value>1</Value>
  </EnumEntry><pValue>SelectorReg</pValue><pSelected>Delay</pSelected></Enumeration>
<Integer Name="Delay"><pValue>DelayReg</pValue></Integer>
<Command Name="Fire"><pValue>FireReg</pValue><CommandValue>7</CommandValue></Command>
<Integer Name="TLParamsLocked"><pValue>LockReg</pValue></Integer>
<Integer Name="Switch"><pValue>SwitchReg</pValue></Integer>)"
        + reg("WidthReg", 0) + reg("TwiceReg", 8) + reg("GainReg", 16)
        + reg("TemperatureReg", 24, "RO", "WriteThrough", "<PollingTime>10</PollingTime>") + reg("SelectorReg", 32)
        + reg("DelayReg", 40) + reg("FireReg", 48) + reg("LockReg", 56, "RW", "NoCache") + reg("SwitchReg", 64);
}

/** Tells of each read. */
struct TellingPort : OrvGenApi::MemoryPort
{
    void Read(void *buffer, int64_t address, int64_t length) override
    {
        if (told)
            told();
        MemoryPort::Read(buffer, address, length);
    }

    std::function<void()> told;
};

struct Stage : ShownView
{
    Stage()
        : ShownView(nodes())
    {
        tools.setContextMenu(true);
    }

    void set(const char *name, int64_t value) const { node<GenApi::CIntegerPtr>(name)->SetValue(value); }
    QString current() const
    {
        return tree->currentIndex().data(OrvGui::OrvGenParamTreeView::FeatureNameRole).toString();
    }

    QStringList names() const
    {
        QStringList all;
        for (const QModelIndex &row : rows())
            all += nodeName(row);
        return all;
    }

    /** Offscreen each menu that opens says so. */
    static void expectMenu()
    {
        OrvTest::TestCase::expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
    }

    /** Opens the menu of the row with the Menu key. */
    QMenu *menuOf(const char *name) const
    {
        expectMenu();
        tree->setFocus();
        tree->setCurrentIndex(cell(name, 0));
        QTest::keyClick(tree, Qt::Key_Menu);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }

    /** Chooses in the menu of the row by keys: the mnemonics. */
    bool choose(const char *name, const char *keys) const
    {
        if (!menuOf(name))
            return false;
        for (const char *key = keys; *key && QApplication::activePopupWidget(); ++key)
            QTest::keyClick(QApplication::activePopupWidget(), *key);
        return !QApplication::activePopupWidget();
    }

    OrvFeatureTreeTools tools{&view};
};

} // namespace

class FeatureTreeToolsTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void menuActsOnTheRow();
    void mouseAndKeysOpenTheMenu();
    void menuGoesWithTheNodeMap();
    void toolsMayGoAtAnyTime();
    void tellsWhyNotWritable_data();
    void tellsWhyNotWritable();
    void reasonsFollowTheCameraAndLead();
    void readsAgainWhatIsShown();
    void showsAPartOnly();
    void slotsMayChooseAnotherPart();
    void jumpsToWhatIsHidden();
    void findsByKeys();
    void findsInLargeAndDeepTrees();
    void followsChanges();
    void marksWhatHasChanged();
    void outlivesAndIsOutlived();
};

void FeatureTreeToolsTest::menuActsOnTheRow()
{
    Stage stage;
    QVERIFY(stage.show());
    const auto copied = [&](const char *name, const char *keys) {
        return stage.choose(name, keys) ? QGuiApplication::clipboard()->text() : QStringLiteral("no menu");
    };
    QCOMPARE(copied("Width", "g"), QStringLiteral("Width"));
    stage.set("Width", 640);
    QCOMPARE(copied("Width", "v"), QStringLiteral("640"));
    QCOMPARE(copied("Width", "r"), QStringLiteral("Image & Width\t640"));
    for (const char *const unread : {"Fire", "Gain"}) { // a command, and what is not available
        QVERIFY(!stage.choose(unread, "v"));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    }

    QSignalSpy written(&stage.view, &OrvGui::OrvGenParamTreeView::featureWritten);
    QVERIFY(stage.choose("Fire", "e"));
    QCOMPARE(written.count(), 1);
    stage.view.setReadOnly(true);
    QVERIFY(!stage.choose("Fire", "e"));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QCOMPARE(written.count(), 1);

    QVERIFY(stage.menuOf("Delay"));
    Stage::expectMenu();
    QTest::keyClick(QApplication::activePopupWidget(), 's');
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QCOMPARE(stage.current(), QStringLiteral("Selector"));

    QSignalSpy favorites(&stage.tools, &OrvFeatureTreeTools::favoritesChanged);
    QVERIFY(stage.choose("Gain", "f"));
    QCOMPARE(stage.tools.favorites(), QStringList{QStringLiteral("Gain")});
    QVERIFY(stage.choose("Gain", "f"));
    QCOMPARE(stage.tools.favorites(), QStringList());
    QCOMPARE(favorites.count(), 2);
}

void FeatureTreeToolsTest::mouseAndKeysOpenTheMenu()
{
    Stage stage;
    QVERIFY(stage.show());
    QWidget *const viewport = stage.tree->viewport();
    const QPoint place = stage.tree->visualRect(stage.cell("Width")).center();
    Stage::expectMenu();
    WindowMouse::press(viewport, place, Qt::RightButton);
    QVERIFY(QApplication::activePopupWidget());
    QCOMPARE(stage.current(), QStringLiteral("Width"));
    QVERIFY(!stage.editor());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    WindowMouse::release(viewport, place, Qt::RightButton);
    Stage::expectMenu();
    QTest::keyClick(stage.tree, Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    stage.tools.setContextMenu(false);
    WindowMouse::press(viewport, place, Qt::RightButton);
    QTest::keyClick(stage.tree, Qt::Key_Menu);
    QVERIFY(!QApplication::activePopupWidget());
}

void FeatureTreeToolsTest::menuGoesWithTheNodeMap()
{
    Stage stage;
    QVERIFY(stage.show());
    const QPointer<QMenu> menu = stage.menuOf("Width");
    QVERIFY(menu);
    stage.view.clearParams();
    QVERIFY(!QApplication::activePopupWidget());
    QTRY_VERIFY(!menu);
    QVERIFY(!stage.tools.jumpTo(QStringLiteral("Width")));
    QTest::keyClick(stage.tree, Qt::Key_Menu);
    QVERIFY(!QApplication::activePopupWidget());
}

/** While the menu is made, and in a slot. */
void FeatureTreeToolsTest::toolsMayGoAtAnyTime()
{
    const auto whenDeletedBy = [](auto deleteBy) {
        Stage stage;
        auto *const tools = new OrvFeatureTreeTools(&stage.view, &stage.view);
        tools->setContextMenu(true);
        const QPointer<OrvFeatureTreeTools> alive(tools);
        deleteBy(stage, *tools);
        return !alive && !QApplication::activePopupWidget() && stage.cell("Width").isValid();
    };
    TellingPort port;
    QVERIFY(whenDeletedBy([&](Stage &stage, OrvFeatureTreeTools &tools) {
        stage.tools.setContextMenu(false);
        stage.map->connect(&port, "Device");
        stage.tree->setCurrentIndex(stage.cell("Width", 0));
        port.told = [&, done = false]() mutable {
            if (!std::exchange(done, true))
                delete &tools;
        };
        QTest::keyClick(stage.tree, Qt::Key_Menu); // reads whether the feature is locked
    }));
    QVERIFY(whenDeletedBy([&](Stage &, OrvFeatureTreeTools &tools) {
        QObject::connect(&tools, &OrvFeatureTreeTools::told, &tools, [&] { delete &tools; });
        tools.jumpTo(QStringLiteral("Nowhere"));
    }));
}

void FeatureTreeToolsTest::tellsWhyNotWritable_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("changed");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *feature, const char *changed, int value, const char *reason) {
        QTest::newRow(
            qPrintable(QStringLiteral("%1 %2 %3").arg(QLatin1String(feature), QLatin1String(changed)).arg(value)))
            << feature << changed << value << reason;
    };
    row("Width", "TLParamsLocked", 0, "");
    row("Width", "TLParamsLocked", 1, "the acquisition is running (TLParamsLocked)");
    row("Both", "TLParamsLocked", 1, "locked by TLParamsLocked, Switch");
    row("Indexed", "Mode", 0, "the camera lets it be read only");
    row("Indexed", "Mode", 1, "locked by Always");
    row("Twice", "Switch", 0, "");
    row("Twice", "Switch", 1, "locked by Switch");
    row("Gain", "Switch", 0, "not available now because of Switch");
    row("Gain", "Switch", 1, "");
    row("Temperature", "Switch", 1, "the camera lets it be read only");
    row("Image", "Switch", 0, "");
    row("Nothing", "Switch", 0, "");
}

void FeatureTreeToolsTest::tellsWhyNotWritable()
{
    QFETCH(QString, feature);
    QFETCH(QString, changed);
    QFETCH(int, value);
    Stage stage;
    stage.set(changed.toLatin1(), value);
    QTEST(stage.tools.reasonFor(feature), "reason");
    for (const char *const getter : {"GetProperty", "GetAccessMode", "GetChildren", "GetName", "GetValue"}) {
        failGetter(*stage.map, "Switch", getter);
        failGetter(*stage.map, feature.toStdString(), getter);
        stage.tools.reasonFor(feature);
        stage.tools.jumpTo(feature);
        stage.tools.readAgain(feature);
        QCoreApplication::processEvents();
        Stage::expectMenu();
        QTest::keyClick(stage.tree, Qt::Key_Menu); // at the row, if any
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    }
}

void FeatureTreeToolsTest::reasonsFollowTheCameraAndLead()
{
    Stage stage;
    QVERIFY(stage.show());
    auto *const help = stage.part<QTextBrowser>("whatsThisLabel");
    stage.tree->setCurrentIndex(stage.cell("Twice", 0));
    stage.set("Switch", 1);
    QVERIFY(!help->toPlainText().contains(QLatin1String("locked by Switch")));
    stage.tools.setTellsReasons(true);
    QTRY_VERIFY(help->toPlainText().contains(QLatin1String("locked by Switch")));
    stage.set("Switch", 0);
    QTRY_VERIFY(!help->toPlainText().contains(QLatin1String("locked by Switch")));
    stage.set("Switch", 1);
    QTRY_VERIFY(help->toPlainText().contains(QLatin1String("locked by Switch")));
    stage.node("Switch")->InvalidateNode();
    QCoreApplication::processEvents();
    QVERIFY(help->toPlainText().contains(QLatin1String("locked by Switch"))); // as before
    help->setFocus();
    QTest::keyClick(help, Qt::Key_Tab);
    QTest::keyClick(help, Qt::Key_Return);
    QCOMPARE(stage.current(), QStringLiteral("Switch"));
    QWhatsThisClickedEvent clicked(QStringLiteral("feature:Width")); // in a pop-up
    QCoreApplication::sendEvent(&stage.view, &clicked);
    QCOMPARE(stage.current(), QStringLiteral("Width"));
}

void FeatureTreeToolsTest::readsAgainWhatIsShown()
{
    Stage stage;
    QVERIFY(stage.show());
    const auto text = [&](const char *name) { return stage.cell(name).data().toString(); };
    QCOMPARE(text("Temperature") + text("Delay"), QStringLiteral("00"));
    const quint64 behind = qToBigEndian<quint64>(77);
    for (const int64_t address : {24, 40}) // not through the node map, which has the former values
        stage.port.Write(&behind, address, sizeof behind);
    QVERIFY(stage.choose("Image", "a"));
    QTRY_COMPARE(text("Temperature"), QStringLiteral("77"));
    QCOMPARE(text("Delay"), QStringLiteral("0"));
    QVERIFY(stage.choose("Delay", "a"));
    QTRY_COMPARE(text("Delay"), QStringLiteral("77"));
    QVERIFY(stage.choose("Image", "a"));
    stage.view.clearParams(); // while it is going on
    QCoreApplication::processEvents();
}

void FeatureTreeToolsTest::showsAPartOnly()
{
    Stage stage;
    QVERIFY(stage.show());
    const QStringList all = stage.names();
    const auto list = [](const char *names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); };
    stage.tree->setExpanded(stage.cell("Trigger", 0), false);
    const QByteArray arranged = stage.view.saveState();

    QVERIFY(stage.choose("Gain", "o"));
    QCOMPARE(stage.names(), list("Image Inner Gain Temperature Expert Again Inner Gain Temperature Expert"));
    QCOMPARE(QByteArray(stage.view.saveState()), arranged);
    stage.tools.setFavorites(list("Gain Delay Nowhere"));
    stage.tools.setShowsFavoritesOnly(true);
    QCOMPARE(stage.names(), list("Image Inner Gain Again Inner Gain"));
    QVERIFY(stage.choose("Gain", "l"));
    QCOMPARE(stage.names(), list("Image Inner Gain Trigger Delay Again Inner Gain"));
    QVERIFY(stage.tree->isExpanded(stage.cell("Trigger", 0)));
    stage.tools.setFavorite(QStringLiteral("Delay"), false);
    QCOMPARE(stage.names(), list("Image Inner Gain Again Inner Gain"));
    stage.tools.setShowsFavoritesOnly(false);
    QCOMPARE(stage.names(), all);
    QCOMPARE(QByteArray(stage.view.saveState()), arranged);

    stage.tools.setShowsFavoritesOnly(true);
    stage.view.loadState("Trigger&lt;Image&lt;"); // anybody's text
    QVERIFY(stage.tools.jumpTo(QStringLiteral("Gain")));
    stage.tree->setExpanded(stage.cell("Again", 0), false);
    stage.tools.setFavorites(list("Gain Delay"));
    QVERIFY(!stage.tree->isExpanded(stage.cell("Again", 0)) && stage.tree->isExpanded(stage.cell("Trigger", 0)));
    stage.tools.setFavorites({}); // nothing is left but the menu
    QVERIFY(stage.choose("Nothing", "i"));
    QCOMPARE(stage.names(), all);
    QVERIFY(stage.tree->isExpanded(stage.cell("Trigger", 0)) && !stage.tree->isExpanded(stage.cell("Again", 0)));
    stage.tools.setFavorites(list("Gain"));
    stage.tree->collapseAll();
    stage.tools.setShowsFavoritesOnly(true);
    stage.tree->setCurrentIndex(stage.cell("Gain", 0));
    stage.tools.setShowsFavoritesOnly(false);
    QCOMPARE(stage.current(), QStringLiteral("Gain")); // in a category that was closed before

    QVERIFY(stage.tools.showOnlyCategory(QStringLiteral("Trigger")));
    QVERIFY(!stage.tools.showOnlyCategory(QStringLiteral("Width")));
    QCOMPARE(stage.tools.onlyCategory(), QStringLiteral("Trigger"));
    QSignalSpy changed(&stage.tools, &OrvFeatureTreeTools::shownPartChanged);
    FeatureCamera other(nodes());
    stage.view.setParams(other.map.get());
    QCOMPARE(stage.tools.onlyCategory(), QString());
    QCOMPARE(stage.names(), all);
    QTRY_COMPARE(changed.count(), 1);
    stage.view.clearParams(); // before its node map
}

void FeatureTreeToolsTest::slotsMayChooseAnotherPart()
{
    Stage stage;
    const QStringList all = stage.names();
    stage.tools.setFavorites({QStringLiteral("Gain")});
    stage.tree->setCurrentIndex(stage.cell("Width", 0));
    connect(&stage.view, &OrvGui::OrvGenParamTreeView::currentFeatureChanged, &stage.tools,
            [&] { stage.tools.setShowsFavoritesOnly(false); });
    stage.tools.setShowsFavoritesOnly(true); // which makes another row current
    QCOMPARE(stage.names(), all);
    QVERIFY(!stage.tools.showsFavoritesOnly());
}

void FeatureTreeToolsTest::jumpsToWhatIsHidden()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.tree->collapseAll();
    stage.view.setVisibility(OrvGui::Basic);
    QVERIFY(stage.tools.jumpTo(QStringLiteral("Gain")));
    QCOMPARE(stage.current(), QStringLiteral("Gain"));
    QVERIFY(stage.tree->visualRect(stage.tree->currentIndex()).isValid());

    stage.tools.setFavorites({QStringLiteral("Delay")});
    stage.tools.setShowsFavoritesOnly(true);
    stage.tools.showOnlyCategory(QStringLiteral("Image"));
    QVERIFY(stage.tools.jumpTo(QStringLiteral("Delay")));
    QVERIFY(stage.tools.showsFavoritesOnly() && stage.tools.onlyCategory().isEmpty());
    QVERIFY(stage.tools.jumpTo(QStringLiteral("Width")));
    QVERIFY(!stage.tools.showsFavoritesOnly());

    QSignalSpy told(&stage.tools, &OrvFeatureTreeTools::told);
    stage.tools.showOnlyCategory(QStringLiteral("Trigger"));
    QSignalSpy changed(&stage.tools, &OrvFeatureTreeTools::shownPartChanged);
    QVERIFY(!stage.tools.jumpTo(QStringLiteral("Expert")));
    QCOMPARE(changed.count(), 0); // nothing is tried out
    QCOMPARE(told.takeFirst().first().toString(), QStringLiteral("'Expert' is shown at the level Expert."));
    QCOMPARE(stage.tools.onlyCategory(), QStringLiteral("Trigger"));
    stage.view.setFilterText(QStringLiteral("Delay"));
    QVERIFY(!stage.tools.jumpTo(QStringLiteral("Gain")));
    QVERIFY(!stage.tools.jumpTo(QStringLiteral("Nowhere")));
    QVERIFY(!stage.tools.jumpTo(QStringLiteral("WidthReg")));
    QCOMPARE(told.count(), 3);
}

void FeatureTreeToolsTest::findsByKeys()
{
    Stage stage;
    QVERIFY(stage.show());
    stage.tree->collapseAll();
    stage.tree->setFocus();
    QTest::keyClick(stage.tree, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!stage.part<QWidget>("findBar"));
    stage.tools.setFindBar(true);
    QTest::keyClick(stage.tree, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    auto *const bar = stage.part<QWidget>("findBar");
    auto *const text = bar->findChild<QLineEdit *>();
    auto *const count = bar->findChild<QLabel *>();
    QVERIFY(text->hasFocus());
    const auto found = [&](const char *name, const char *shown) {
        return QTest::qWaitFor(
            [&] { return stage.current() == QLatin1String(name) && count->text() == QLatin1String(shown); });
    };
    QTest::keyClicks(text, QStringLiteral("GAIN"));
    QVERIFY(found("Gain", "1 of 3")); // and the category "Again"
    QVERIFY(stage.tree->visualRect(stage.tree->currentIndex()).isValid());
    QVERIFY(!stage.editor());
    QTest::keyClick(text, Qt::Key_F3);
    QVERIFY(found("Again", "2 of 3"));
    QTest::keyClick(text, Qt::Key_Return);
    QVERIFY(found("Gain", "3 of 3"));
    QTest::keyClick(text, Qt::Key_Return);
    QVERIFY(found("Gain", "1 of 3"));
    QTest::keyClick(text, Qt::Key_F3, Qt::ShiftModifier);
    QVERIFY(found("Gain", "3 of 3"));
    stage.tools.showOnlyCategory(QStringLiteral("Image"));
    QTRY_COMPARE(count->text(), QStringLiteral("1 found"));
    QTest::keyClick(text, 'x');
    QTRY_COMPARE(count->text(), QStringLiteral("not found"));
    QTest::keyClick(text, Qt::Key_Escape);
    QVERIFY(!bar->isVisible() && stage.tree->hasFocus());
    QTest::keyClick(stage.tree, Qt::Key_F3);
    QVERIFY(bar->isVisible());
    QTest::keyClick(stage.tree, Qt::Key_Escape);
    QVERIFY(!bar->isVisible() && stage.view.isVisible());
    auto *const level = stage.part<QComboBox>("cbVisibility");
    level->setFocus();
    QTest::keyClick(level, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(text->hasFocus());
    QVERIFY(stage.walkTo(stage.cell("Image", 0))); // which goes through the bar
    QTest::keyClick(stage.tree, Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget()->parentWidget(), bar);
    text->setText(QStringLiteral("image")); // a display name and a GenICam name
    QVERIFY(found("Image", "1 of 2"));
    FeatureCamera other(nodes());
    stage.view.setParams(other.map.get());
    QTRY_COMPARE(count->text(), QStringLiteral("2 found"));
    stage.view.clearParams();
    QTRY_COMPARE(count->text(), QStringLiteral("not found"));
    QTest::keyClick(text, Qt::Key_F3);
}

/** No key takes the time of the whole search. */
void FeatureTreeToolsTest::findsInLargeAndDeepTrees()
{
    QByteArray description;
    const int depth = 900;
    for (int i = 0; i < depth; ++i) {
        const QByteArray next = i + 1 < depth ? "C" + QByteArray::number(i + 1) : QByteArray("Bottom");
        description += "<Category Name=\"" + (i ? "C" + QByteArray::number(i) : QByteArray("Root")) + "\"><pFeature>"
            + next + "</pFeature>" + (i ? "" : "<pFeature>Many</pFeature>") + "</Category>";
    }
    QByteArray many = "<Category Name=\"Many\">";
    for (int i = 0; i < 20000; ++i) {
        const QByteArray name = "Feature" + QByteArray::number(i);
        many += "<pFeature>" + name + "</pFeature>";
        description += "<Integer Name=\"" + name + "\"><pValue>Reg</pValue></Integer>";
    }
    description += many + "</Category><Integer Name=\"Bottom\"><Value>1</Value></Integer>" + reg("Reg", 0);
    FeatureCamera camera(description);
    OrvGui::OrvGenParamTreeView view(camera.map.get());
    OrvFeatureTreeTools tools(&view);
    tools.setFindBar(true);
    tools.find();
    auto *const text = view.findChild<QWidget *>(QStringLiteral("findBar"))->findChild<QLineEdit *>();
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    const auto current = [&] {
        return view.treeView()->currentIndex().data(OrvGui::OrvGenParamTreeView::FeatureNameRole).toString();
    };
    auto *const count = text->parentWidget()->findChild<QLabel *>();
    QTest::keyClicks(text, QStringLiteral("bottom"));
    QVERIFY(count->text().endsWith(QChar(0x2026)));
    QTRY_COMPARE(current(), QStringLiteral("Bottom"));
    QTest::keyClick(text, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(text, QStringLiteral("feature1999"));
    QTRY_COMPARE(current(), QStringLiteral("Feature1999"));
    QTRY_COMPARE(count->text(), QStringLiteral("1 of 11"));
    QVERIFY(tools.showOnlyCategory(QStringLiteral("C500")));
    QTRY_COMPARE(count->text(), QStringLiteral("not found"));
    view.clearParams(); // before its node map
}

void FeatureTreeToolsTest::followsChanges()
{
    Stage stage;
    stage.tools.setTracksChanges(true);
    QVERIFY(stage.show());
    const auto changed = [&](const char *names) {
        return QTest::qWaitFor(
            [&] { return stage.tools.changedFeatures().join(QLatin1Char(' ')) == QLatin1String(names); });
    };
    stage.set("Delay", 5);
    QVERIFY(stage.enter("Width", "7"));
    QVERIFY(changed("Delay Width"));
    stage.set("Delay", 0);
    QVERIFY(changed("Width"));
    stage.tools.setShowsChangedOnly(true);
    QCOMPARE(stage.names().join(QLatin1Char(' ')), QStringLiteral("Image Width"));
    stage.set("Delay", 6); // which is hidden, and reports
    QTRY_COMPARE(stage.names().join(QLatin1Char(' ')), QStringLiteral("Image Width Trigger Delay"));
    QVERIFY(changed("Delay Width"));
    stage.map->Poll(20); // the temperature, which stays hidden
    stage.node("Switch")->InvalidateNode(); // to the same value
    QTRY_VERIFY(stage.cell("Switch").isValid());
    QVERIFY(!stage.cell("Temperature").isValid());
    QTRY_VERIFY(!stage.cell("Switch").isValid());
    stage.set("Delay", 0); // the first value
    QTRY_VERIFY(!stage.cell("Delay").isValid());

    stage.tools.setTracksChanges(false);
    stage.tools.setShowsChangedOnly(true); // no value has been seen
    stage.set("Delay", 5);
    QTRY_VERIFY(stage.cell("Delay").isValid());
    QTRY_VERIFY(!stage.cell("Delay").isValid());
    stage.set("Delay", 6);
    QVERIFY(changed("Delay"));
    QTRY_VERIFY(stage.cell("Delay").isValid());
    FeatureCamera other(nodes());
    stage.view.setParams(other.map.get());
    QVERIFY(changed("") && !stage.tools.showsChangedOnly() && stage.tools.tracksChanges());
    stage.view.clearParams();
}

/** Painting the marks reads no value, not even one that is never cached. */
void FeatureTreeToolsTest::marksWhatHasChanged()
{
    TellingPort port;
    int reads = 0;
    port.told = [&] { ++reads; };
    Stage stage;
    stage.map->connect(&port, "Device");
    QVERIFY(stage.show());
    stage.tree->viewport()->grab();
    stage.tools.setMarksChanges(true);
    stage.tree->viewport()->grab();
    const auto bar = [&](const char *name) {
        const QRect cell = stage.tree->visualRect(stage.cell(name, 0));
        const QImage seen = stage.tree->viewport()->grab(QRect(cell.right() - 2, cell.center().y(), 1, 1)).toImage();
        return seen.pixelColor(0, 0);
    };
    const QColor unmarked = bar("TLParamsLocked");
    stage.set("TLParamsLocked", 5);
    QTRY_VERIFY(bar("TLParamsLocked") != unmarked);
    PaintLog painted(stage.tree->viewport());
    const int before = reads;
    QTRY_COMPARE(bar("TLParamsLocked"), unmarked);
    QCOMPARE(reads, before);
    QVERIFY(painted.count > 1);
    stage.set("TLParamsLocked", 6);
    QTRY_VERIFY(bar("TLParamsLocked") != unmarked);
    painted.clear();
    stage.tools.setTracksChanges(true); // begins anew, without marks
    QTRY_VERIFY(painted.count > 0);
}

void FeatureTreeToolsTest::outlivesAndIsOutlived()
{
    FeatureCamera camera(nodes());
    auto view = std::make_unique<OrvGui::OrvGenParamTreeView>(camera.map.get());
    for (const bool viewFirst : {false, true}) {
        auto tools = std::make_unique<OrvFeatureTreeTools>(view.get());
        tools->setContextMenu(true);
        tools->setTellsReasons(true);
        tools->setFindBar(true);
        tools->find();
        tools->setTracksChanges(true);
        tools->setMarksChanges(true);
        tools->showOnlyCategory(QStringLiteral("Image"));
        if (viewFirst)
            view.reset();
        else
            tools.reset();
        if (tools) {
            tools->setShowsFavoritesOnly(true);
            QVERIFY(!tools->jumpTo(QStringLiteral("Width")) && !tools->showOnlyCategory(QStringLiteral("Image")));
            tools->readAgain(QStringLiteral("Width"));
            tools->findNext();
        } else {
            QVERIFY(cellOf(*view->treeView()->model(), camera.node("Delay")).isValid());
        }
    }
    OrvFeatureTreeTools(nullptr).setTellsReasons(true);

    Stage stage; // its slots delete the tools
    for (const auto &emitted : {&OrvFeatureTreeTools::shownPartChanged, &OrvFeatureTreeTools::favoritesChanged}) {
        const QPointer<OrvFeatureTreeTools> tools(new OrvFeatureTreeTools(&stage.view));
        tools->setShowsFavoritesOnly(true);
        connect(tools, emitted, [&] { delete tools; });
        tools->setFavorites({QStringLiteral("Width")});
        if (tools)
            tools->jumpTo(QStringLiteral("Delay")); // which shows more
        QVERIFY(!tools && stage.cell("Delay").isValid());
    }

    view = std::make_unique<OrvGui::OrvGenParamTreeView>(camera.map.get());
    auto *const inside = new OrvFeatureTreeTools(view.get(), view->treeView()); // goes with the tree
    inside->setTellsReasons(true);
    inside->setMarksChanges(true);
    inside->setFindBar(true);
    inside->setFavorites({QStringLiteral("Gain")});
    inside->setShowsFavoritesOnly(true);
    view.reset();
}

ORV_TEST_MAIN(FeatureTreeToolsTest)
#include "tst_featuretreetools.moc"
