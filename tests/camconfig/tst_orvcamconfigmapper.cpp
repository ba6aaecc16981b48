#include "dialogtest.h"
#include "fakeparams.h"
#include "orvtest.h"
#include "sliderhandle.h"

#include <OrvCameraGuiApi/camconfig/controlwatch.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QCheckBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <limits>
#include <thread>

using namespace OrvGui;
using DialogTest::refusal;
using DialogTest::shownMessage;
using DialogTest::takeMessage;
using Writes = std::vector<std::int64_t>;

namespace {

const auto int64Min = std::numeric_limits<std::int64_t>::min();
const auto int64Max = std::numeric_limits<std::int64_t>::max();
const auto intMin = std::numeric_limits<int>::min();
const auto intMax = std::numeric_limits<int>::max();

/** Shows ten for one, and halves on the way back. */
class TenTimes : public IOrvCamConfigIntConverter
{
public:
    virtual ~TenTimes() = default;
    std::int64_t ToControl(std::int64_t value, OrvGenParam::Int *) override { return value * 10; }
    std::int64_t ToDevice(std::int64_t value, OrvGenParam::Int *) override { return value / 10; }
};

/** One control of each kind that can be bound, in a window, with a parameter for each; the mapper goes first. */
struct Panel
{
    explicit Panel(int buttonCount = 3)
        : column(&window)
    {
        for (int i = 0; i < buttonCount; ++i) {
            buttons.append(new QRadioButton(&window));
            group.addButton(buttons.last());
            tabs.addTab(new QWidget, QStringLiteral("page"));
        }
        const QWidgetList all = controls() + QWidgetList{&label} + window.findChildren<QWidget *>();
        for (QWidget *const control : all)
            column.addWidget(control);
    }

    /** Binds every control. */
    void bind(TenTimes *converter = nullptr)
    {
        const auto all = params();
        const char *const names[] = {"Combo", "Check", "Group", "Tabs", "Command", "Toggle", "Spin", "Slider"};
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i]->name = names[i];
        QCOMPARE(mapper->mapEnumParam(&comboParam, &combo), 1);
        QCOMPARE(mapper->mapEnumParam(&checkParam, &check), 1);
        QCOMPARE(mapper->mapEnumParam(&groupParam, &group), 1);
        QCOMPARE(mapper->mapEnumParam(&tabParam, &tabs), 1);
        QCOMPARE(mapper->mapCommandParam(&commandParam, &command, nullptr), 1);
        QCOMPARE(mapper->mapBooleanParam(&toggleParam, &toggle), 1);
        QCOMPARE(mapper->mapIntParam(&spinParam, &spin, {&label}), 1);
        QCOMPARE(mapper->mapIntParam(&sliderParam, &sliderSpin, converter), 1);
    }

    std::vector<FakeParams::Fake *> params()
    {
        return {&comboParam,   &checkParam,  &groupParam, &tabParam,
                &commandParam, &toggleParam, &spinParam,  &sliderParam};
    }

    QWidgetList controls() { return {&combo, &check, buttons.first(), &tabs, &command, &toggle, &spin, &sliderSpin}; }

    Writes writes()
    {
        Writes all;
        for (const FakeParams::Fake *const param : params())
            all.insert(all.end(), param->writes.begin(), param->writes.end());
        return all;
    }

    FakeParams::Enum comboParam{{{"Aus", 0}, {"Grün", 1}, {"Weiß", 2}}};
    FakeParams::Enum checkParam{{{"Off", 0}, {"On", 1}}};
    FakeParams::Enum groupParam{{{"Low", 5}, {"Middle", 7}, {"High", 9}}};
    FakeParams::Enum tabParam{{{"FrameA", 0}, {"FrameB", 1}, {"Both", 2}}};
    FakeParams::Command commandParam;
    FakeParams::Boolean toggleParam;
    FakeParams::Int spinParam;
    FakeParams::Int sliderParam;

    QWidget window;
    QVBoxLayout column;
    QComboBox combo;
    QCheckBox check;
    QTabWidget tabs;
    QPushButton command{QStringLiteral("Go")};
    QPushButton toggle{QStringLiteral("Toggle")};
    QtOrvSpinBox spin;
    QtOrvSliderSpinBox sliderSpin;
    QLabel label;
    QButtonGroup group;
    QList<QRadioButton *> buttons;
    std::unique_ptr<OrvCamConfigMapper> mapper = std::make_unique<OrvCamConfigMapper>();
};

/** Ends the showing of a refused entry. */
using GivingUp = std::function<void(Panel &, FakeParams::Fake &)>;

} // namespace

Q_DECLARE_METATYPE(GivingUp)

class OrvCamConfigMapperTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aUserActionWritesOnce();
    void aRefusedWriteTellsAndKeepsTheEntry();
    void aRefusedEntryIsMarkedUntilItGoes_data();
    void aRefusedEntryIsMarkedUntilItGoes();
    void whatIsNewsIsDecidedByTheCamera();
    void aDroppedEntryIsTakenBack();
    void aLockEndsADrag();
    void aRefreshShowsAndSignalsButWritesNothing();
    void nothingIsWrittenWhileAControlIsDetached();
    void nullBindsNothing();
    void controlsFollowTheirParameter();
    void showsIntegers();
    void refreshesKindsThatOthersBind();
    void comboBoxPassesOverNullEntries();
    void radioButtonsTakeNamesAndValues();
    void tabsAreNamedRemovedAndEnabled();
    void aCommandWaitsForItsTimer();
    void aFeatureHasOneControl();
    void unboundControlsAreLeftAlone();
    void aRefreshMayUnbindAndDestroy();
    void aWriteMayDestroyTheMapper();
    void otherThreadsAreHeardOnTheGuiThread();
    void describesErrors();
    void aMessageSurvivesWhatHappensToItsParent();
};

void OrvCamConfigMapperTest::aUserActionWritesOnce()
{
    TenTimes converter;
    Panel panel;
    panel.toggle.setCheckable(true);
    panel.bind(&converter);
    panel.bind(&converter); // twice makes no second write
    QVERIFY(DialogTest::show(panel.window));
    QTest::keyClick(&panel.combo, Qt::Key_End);
    DialogTest::clickMark(&panel.check);
    DialogTest::clickMark(panel.buttons[1]);
    QTabBar *const bar = panel.tabs.tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    QTest::mouseClick(&panel.command, Qt::LeftButton);
    QTest::mouseClick(&panel.toggle, Qt::LeftButton);
    DialogTest::enter(panel.spin.spinBox(), "42"); // only what is committed
    DialogTest::enter(panel.sliderSpin.spinBox(), "420"); // converted
    const Writes writes = {2, 1, 7, 1, 1, 1, 42, 42};
    QCOMPARE(panel.writes(), writes);
    QVERIFY(!shownMessage());

    for (FakeParams::Fake *const param : panel.params())
        param->writable = false; // of which nothing was said yet
    panel.spin.setValue(7);
    QCOMPARE(panel.writes(), writes);
}

void OrvCamConfigMapperTest::aRefusedWriteTellsAndKeepsTheEntry()
{
    Panel panel;
    panel.bind();
    QVERIFY(DialogTest::show(panel.window));
    panel.spinParam.answer = OrvCamErr_GenICamOutOfRange;
    panel.groupParam.answer = OrvCamErr_GenICamAccessError;

    DialogTest::enter(panel.spin.spinBox(), "42");
    QCOMPARE(panel.spinParam.writes, Writes{42});
    QVERIFY(shownMessage());
    QCOMPARE(shownMessage()->parentWidget(), &panel.spin);
    QCOMPARE(shownMessage()->icon(), QMessageBox::Critical);
    QCOMPARE(shownMessage()->windowTitle(), QString());
    QCOMPARE(shownMessage()->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(takeMessage(), refusal("Spin", "GenICam: Parameter is out of range"));
    QCOMPARE(panel.spin.value(), 42);

    DialogTest::clickMark(panel.buttons[2]);
    QCOMPARE(takeMessage(), refusal("Group", "GenICam: Access error"));
    QVERIFY(panel.buttons[2]->isChecked());

    panel.spinParam.notify();
    QCOMPARE(panel.spin.value(), 0);

    // The pop-up slider, which has mouse and keys for itself, makes way.
    expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
    QTest::mouseClick(panel.spin.toolButton(), Qt::LeftButton);
    QTRY_VERIFY(panel.spin.slider()->isVisible());
    QTest::keyClick(panel.spin.slider()->focusProxy() ? panel.spin.slider()->focusProxy() : panel.spin.slider(),
                    Qt::Key_Up);
    QCOMPARE(takeMessage(), refusal("Spin", "GenICam: Parameter is out of range"));
    QVERIFY(!panel.spin.slider()->isVisible());
    QCOMPARE(panel.writes(), (Writes{9, 42, 1}));
}

void OrvCamConfigMapperTest::aRefusedEntryIsMarkedUntilItGoes_data()
{
    QTest::addColumn<GivingUp>("giveUp");
    QTest::newRow("Escape") << GivingUp(
        [](Panel &, FakeParams::Fake &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    QTest::newRow("leave") << GivingUp([](Panel &panel, FakeParams::Fake &) { panel.command.setFocus(); });
    QTest::newRow("report") << GivingUp([](Panel &, FakeParams::Fake &param) { param.notify(); });
}

void OrvCamConfigMapperTest::aRefusedEntryIsMarkedUntilItGoes()
{
    QFETCH(GivingUp, giveUp);
    Panel panel;
    panel.toggle.setCheckable(true);
    panel.groupParam.value = 5;
    panel.bind();
    QVERIFY(DialogTest::show(panel.window));
    const auto chooseLast = [&] {
        panel.combo.setFocus();
        expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        panel.combo.showPopup();
        QTest::keyClick(panel.combo.view(), Qt::Key_End);
        QTest::keyClick(panel.combo.view(), Qt::Key_Return);
    };
    struct Row
    {
        FakeParams::Fake &param;
        QWidget *marked;
        std::function<void()> enter;
        QString entered;
        QString cameras;
        bool isWrittenAgain; ///< when entered again; a click on a check box enters the opposite
    };
    const Row rows[] = {
        {panel.comboParam, &panel.combo, chooseLast, QStringLiteral("Weiß"), QStringLiteral("Aus"), true},
        {panel.checkParam, &panel.check, [&] { DialogTest::clickMark(&panel.check); }, QStringLiteral("true"),
         QStringLiteral("Off"), false},
        {panel.groupParam, panel.buttons[2], [&] { DialogTest::clickMark(panel.buttons[2]); }, QStringLiteral("High"),
         QStringLiteral("Low"), true},
        {panel.toggleParam, &panel.toggle, [&] { QTest::mouseClick(&panel.toggle, Qt::LeftButton); },
         QStringLiteral("true"), OrvTest::translated("OrvGui::OrvCamConfigMapper", "off"), false},
        {panel.spinParam, &panel.spin, [&] { DialogTest::enter(panel.spin.spinBox(), "42"); }, QStringLiteral("42"),
         QStringLiteral("0"), true},
        {panel.sliderParam, &panel.sliderSpin, [&] { DialogTest::enter(panel.sliderSpin.spinBox(), "42"); },
         QStringLiteral("42"), QStringLiteral("0"), true}};
    for (const Row &row : rows) {
        row.param.answer = OrvCamErr_GenICamOutOfRange;
        const ControlWatch *const watch = ControlWatch::of(row.marked);
        row.marked->setFocus();
        row.enter();
        QVERIFY(!takeMessage().isEmpty()); // whose focus is no leaving
        QVERIFY(watch->isMarked());
        QVERIFY2(row.marked->toolTip().contains(row.cameras), qPrintable(row.marked->toolTip()));
        QCOMPARE(DialogTest::shownBy(row.marked), row.entered);
        if (row.isWrittenAgain) {
            row.enter();
            QVERIFY(!takeMessage().isEmpty());
            QVERIFY(watch->isMarked());
        }
        QCOMPARE(row.param.writes.size(), std::size_t(row.isWrittenAgain ? 2 : 1));
        panel.window.activateWindow();
        QTRY_VERIFY(QApplication::focusWidget());
        giveUp(panel, row.param);
        QVERIFY(!watch->isMarked());
        QVERIFY(row.marked->toolTip().isEmpty());
        QVERIFY(DialogTest::shownBy(row.marked) != row.entered);
        QVERIFY(panel.window.isVisible());
    }
    // A page would keep controls for an entry that is not the camera's.
    panel.tabParam.answer = OrvCamErr_GenICamOutOfRange;
    QTest::mouseClick(panel.tabs.tabBar(), Qt::LeftButton, {}, panel.tabs.tabBar()->tabRect(1).center());
    QVERIFY(!takeMessage().isEmpty());
    QCOMPARE(panel.tabs.currentIndex(), 0);
}

/** Not by what the control shows, which the camera may have left behind. */
void OrvCamConfigMapperTest::whatIsNewsIsDecidedByTheCamera()
{
    Panel panel;
    panel.toggle.setCheckable(true);
    panel.bind();
    QVERIFY(DialogTest::show(panel.window));
    panel.spinParam.value = 20; // of which nothing is said
    panel.sliderParam.value = 20;
    panel.groupParam.value = 7;
    panel.toggleParam.value = true;
    DialogTest::enter(panel.spin.spinBox(), "0"); // as shown
    DialogTest::enter(panel.sliderSpin.spinBox(), "20"); // as the camera has it
    DialogTest::clickMark(panel.buttons[1]);
    QTest::mouseClick(&panel.toggle, Qt::LeftButton);
    QCOMPARE(panel.writes(), Writes{0});
    QCOMPARE(panel.sliderSpin.value(), 20);
    QVERIFY(panel.toggle.isChecked() && panel.buttons[1]->isChecked());

    panel.spinParam.readable = false; // then nothing can be compared
    panel.spin.setValue(5);
    panel.spin.setValue(0);
    panel.toggle.setChecked(false); // what the program says
    panel.combo.setCurrentIndex(1);
    QCOMPARE(panel.writes(), (Writes{1, 0, 0, 5, 0}));

    panel.spinParam.readable = true;
    panel.groupParam.value = 1234; // without a button
    panel.groupParam.notify();
    QVERIFY(!panel.group.checkedButton());
    QVERIFY(panel.buttons[0]->toolTip().contains(QStringLiteral("1234")));
    panel.spinParam.max = panel.spinParam.value = 5000000000; // beyond what the box can show
    panel.spinParam.notify();
    QVERIFY(panel.spin.toolTip().contains(QStringLiteral("5000000000")));
    panel.spinParam.value = 5;
    panel.spinParam.notify();
    QVERIFY(panel.spin.toolTip().isEmpty());
    panel.sliderParam.value = 150; // beyond the maximum, which it shows
    panel.sliderParam.notify();
    panel.sliderParam.writes.clear();
    DialogTest::enter(panel.sliderSpin.spinBox(), "100");
    QCOMPARE(panel.sliderParam.writes, Writes{100});

    panel.sliderParam.readAnswer = OrvCamErr_GenICamAccessError; // neither 0 nor any other number is the camera's
    panel.sliderParam.notify();
    QCOMPARE(panel.sliderSpin.spinBox()->text(), QString());
    panel.sliderParam.readAnswer = OrvCamErr_Ok;
    panel.sliderParam.notify();
    QCOMPARE(panel.sliderSpin.spinBox()->text(), QStringLiteral("100"));
}

void OrvCamConfigMapperTest::aDroppedEntryIsTakenBack()
{
    Panel panel;
    panel.bind();
    for (FakeParams::Fake *const param : panel.params())
        param->writable = false; // of which nothing was said yet
    panel.spin.setValue(7);
    panel.combo.setCurrentIndex(2);
    panel.tabs.setCurrentIndex(1);
    QCOMPARE(panel.spin.value() + panel.combo.currentIndex() + panel.tabs.currentIndex(), 0);
    QVERIFY(!panel.spin.isEnabled());

    panel.sliderParam.readable = false;
    panel.sliderSpin.setValue(7); // for which there is nothing in its place
    QVERIFY(ControlWatch::of(&panel.sliderSpin)->isMarked());

    // During a refresh nothing is written; whoever insists is not asked for ever.
    panel.spinParam.writable = true;
    QObject::connect(&panel.combo, &QComboBox::currentTextChanged, &panel.combo, [&] { panel.spin.setValue(3); });
    QObject::connect(&panel.spin, QOverload<int>::of(&QtOrvSpinBox::valueChanged), &panel.spin,
                     [&] { panel.spin.setValue(3); });
    panel.comboParam.value = 1;
    panel.comboParam.notify();
    QTRY_VERIFY(panel.spin.value() == 0 || ControlWatch::of(&panel.spin)->isMarked());
    QCOMPARE(panel.writes(), Writes());
}

void OrvCamConfigMapperTest::aLockEndsADrag()
{
    Panel panel;
    panel.bind();
    QVERIFY(DialogTest::show(panel.window));
    QSlider *const slider = panel.sliderSpin.slider()->slider();
    QWindow *const window = panel.window.windowHandle();
    const QPoint from = slider->mapTo(&panel.window, handle(*slider));
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QTest::mouseMove(window, from + QPoint(30, 0));
    QTRY_VERIFY(panel.sliderSpin.value() > 0);
    panel.sliderParam.writable = false;
    panel.sliderParam.notify();
    QTest::mouseRelease(window, Qt::LeftButton, {}, from + QPoint(30, 0));
    QCOMPARE(panel.sliderSpin.value(), 0);
    QCOMPARE(slider->value(), 0);
    QCOMPARE(panel.writes(), Writes());
}

void OrvCamConfigMapperTest::aRefreshShowsAndSignalsButWritesNothing()
{
    Panel panel;
    panel.toggle.setCheckable(true);
    panel.bind();
    int rules = 0;
    QObject::connect(&panel.combo, &QComboBox::currentTextChanged, &panel.combo, [&] {
        ++rules;
        panel.spin.setValue(3); // shown, and not written
    });
    QSignalSpy spinSignals(&panel.spin, QOverload<int>::of(&QtOrvSpinBox::valueChanged));
    panel.comboParam.value = 1;
    panel.checkParam.value = 4;
    panel.groupParam.value = 9;
    panel.tabParam.value = 2;
    panel.toggleParam.value = true;
    panel.spinParam.value = 55;
    panel.spinParam.max = 60;
    panel.sliderParam.value = 66;
    for (FakeParams::Fake *const param : panel.params())
        param->notify();
    QCOMPARE(panel.combo.currentText(), QStringLiteral("Gr\u00fcn"));
    QVERIFY(panel.check.isChecked());
    QVERIFY(panel.buttons[2]->isChecked());
    QCOMPARE(panel.tabs.currentIndex(), 2);
    QVERIFY(panel.toggle.isChecked());
    QCOMPARE(panel.spin.value(), 55);
    QCOMPARE(panel.spin.maximum(), 60);
    QCOMPARE(panel.sliderSpin.value(), 66);
    QCOMPARE(rules, 1);
    QCOMPARE(spinSignals.size(), 2);
    QCOMPARE(panel.writes(), Writes());
}

void OrvCamConfigMapperTest::nothingIsWrittenWhileAControlIsDetached()
{
    Panel panel;
    panel.bind();
    QVERIFY(DialogTest::show(panel.window));
    panel.spin.spinBox()->setIgnoreFocusOut(false); // losing the focus commits what is being typed
    DialogTest::type(panel.spin.spinBox(), "42");
    panel.spinParam.available = false;
    panel.spinParam.notify();
    panel.spinParam.available = true;
    panel.spinParam.notify();
    DialogTest::type(panel.spin.spinBox(), "43");
    panel.mapper->unmapAll();
    QCOMPARE(panel.writes(), Writes());
    for (QWidget *const control : panel.controls())
        QVERIFY(!control->isEnabled());
    QVERIFY(!panel.label.isEnabled());
    for (FakeParams::Fake *const param : panel.params())
        QVERIFY(param->sinks.empty());
}

void OrvCamConfigMapperTest::nullBindsNothing()
{
    Panel panel;
    OrvCamConfigMapper &mapper = *panel.mapper;
    OrvGenParam::Enum *const noEnum = nullptr;
    OrvGenParam::Int *const noInt = nullptr;
    QCOMPARE(mapper.mapEnumParam(noEnum, &panel.combo) + mapper.mapEnumParam(noEnum, &panel.check)
                 + mapper.mapEnumParam(noEnum, &panel.group) + mapper.mapEnumParam(noEnum, &panel.tabs)
                 + mapper.mapCommandParam(nullptr, &panel.command, nullptr)
                 + mapper.mapBooleanParam(nullptr, &panel.toggle)
                 + mapper.mapIntParam(noInt, &panel.spin, {&panel.label, nullptr})
                 + mapper.mapIntParam(noInt, &panel.sliderSpin, nullptr),
             0);
    QButtonGroup empty;
    QCOMPARE(mapper.mapEnumParam(&panel.groupParam, &empty), 0);
    QVERIFY(panel.groupParam.sinks.empty());
    mapper.OnParameterUpdate(nullptr);
    mapper.updateComboBox(noEnum, &panel.combo);
    mapper.updateSpinBox(&panel.spinParam, static_cast<QSpinBox *>(nullptr));
    mapper.unmapParam(nullptr, nullptr);
    for (QWidget *const control : panel.controls() + QWidgetList{&panel.label})
        QVERIFY(!control->isEnabled());
}

void OrvCamConfigMapperTest::controlsFollowTheirParameter()
{
    Panel panel;
    panel.bind();
    const auto params = panel.params();
    const auto controls = panel.controls();
    for (int i = 0; i < controls.size(); ++i) {
        FakeParams::Fake &param = *params[std::size_t(i)];
        for (const auto &[available, writable] : {std::pair(false, true), {true, false}, {true, true}}) {
            param.available = available;
            param.writable = writable;
            param.notify();
            QCOMPARE(controls[i]->isEnabled(), available && writable);
        }
    }
    panel.spinParam.value = 12;
    panel.spinParam.readable = false;
    panel.spinParam.writable = false;
    panel.spinParam.notify();
    QVERIFY(!panel.label.isEnabled());
    QCOMPARE(panel.spin.value(), 0); // not read

    panel.comboParam.available = false;
    QCOMPARE(panel.mapper->mapEnumParam(&panel.comboParam, &panel.combo), 1);
    QVERIFY(!panel.combo.isEnabled());
    QCOMPARE(panel.combo.count(), 3);
}

void OrvCamConfigMapperTest::showsIntegers()
{
    struct Row
    {
        QVector<std::int64_t> device; // minimum, maximum, increment, value
        QVector<int> shown;
        bool converts = false;
        int plainSliderMaximum = 0; ///< where a QSlider cannot take the whole range
    };
    const Row rows[] = {{{1, 40, 10, 17}, {1, 40, 10, 17}}, // between the steps
                        {{0, 5000000000, 1, 4000000000}, {0, intMax, 1, intMax}},
                        {{0, 10, -4, 3}, {0, 10, 1, 3}},
                        {{int64Min, int64Max, int64Max, int64Min}, {intMin, intMax, intMax, intMin}, false, -1},
                        {{1, 40, 2, 9}, {10, 400, 20, 90}, true},
                        {{0, 900000000, 0, 800000000}, {0, intMax, 1, intMax}, true}};
    for (const Row &row : rows) {
        FakeParams::Int param;
        param.min = row.device[0];
        param.max = row.device[1];
        param.increment = row.device[2];
        param.value = row.device[3];
        TenTimes tenTimes;
        TenTimes *const converter = row.converts ? &tenTimes : nullptr;
        OrvCamConfigMapper mapper;
        const auto check = [&](const auto &control) {
            const QVector<int> now{control.minimum(), control.maximum(), control.singleStep(), control.value()};
            QCOMPARE(now, row.shown);
        };
        QtOrvSliderSpinBox sliderSpin;
        QtOrvSpinBox spin;
        QSlider slider;
        QSpinBox plain;
        mapper.mapIntParam(&param, &sliderSpin, converter);
        check(sliderSpin);
        mapper.updateSlider(&param, &slider, converter);
        if (row.plainSliderMaximum)
            QCOMPARE(slider.maximum(), row.plainSliderMaximum);
        else
            check(slider);
        QCOMPARE(slider.value(), row.shown[3]);
        if (!converter) {
            mapper.mapIntParam(&param, &spin);
            check(spin);
            mapper.updateSpinBox(&param, &plain);
            check(plain);
        }
        QCOMPARE(param.writes, Writes());
        mapper.unmapAll();
    }
}

void OrvCamConfigMapperTest::refreshesKindsThatOthersBind()
{
    using Data = OrvCamConfigMapData;
    FakeParams::Int param;
    param.max = 5000000000;
    TenTimes converter;
    QLineEdit edit;
    QIntValidator validator;
    edit.setValidator(&validator);
    QSpinBox spin;
    QSlider slider;
    QLabel wrong; // no line edit
    OrvCamConfigMapper mapper(3000);
    mapper.addRecord(&param, {Data::LineEdit, &edit, nullptr});
    mapper.addRecord(&param, {Data::PlainSpinBox, &spin, nullptr});
    mapper.addRecord(&param, {Data::Slider, &slider, &converter});
    mapper.addRecord(&param, {Data::LineEdit, &wrong, nullptr});
    param.value = 123;
    param.notify();
    QCOMPARE(edit.text(), QStringLiteral("123"));
    QCOMPARE(validator.top(), 3000);
    QCOMPARE(spin.value(), 123);
    QCOMPARE(slider.value(), 1230);
    param.value = 4000;
    param.notify();
    QCOMPARE(edit.text(), QStringLiteral("3000"));
    QCOMPARE(slider.value(), 3000);
    param.writable = false;
    param.notify();
    QVERIFY(!edit.isEnabled() && !wrong.isEnabled());
    mapper.unmapAll();
}

void OrvCamConfigMapperTest::comboBoxPassesOverNullEntries()
{
    FakeParams::Enum param({{"First", 10}, {nullptr, 0}, {"Second", 20}, {"Third", 30}});
    param.value = 30;
    param.entries[2]->available = false;
    QComboBox box;
    OrvCamConfigMapper mapper;
    QCOMPARE(mapper.mapEnumParam(&param, &box), 1);
    QCOMPARE(box.count(), 3);
    QCOMPARE(box.currentText(), QStringLiteral("Third"));
    const auto isItemEnabled = [&](int row) {
        return qobject_cast<QStandardItemModel *>(box.model())->item(row)->isEnabled();
    };
    QVERIFY(isItemEnabled(0) && !isItemEnabled(1) && isItemEnabled(2));
    QTest::keyClick(&box, Qt::Key_Up); // not the one that cannot be chosen
    param.entries[2]->available = true;
    param.value = 99; // which no entry stands for
    param.notify();
    QVERIFY(isItemEnabled(1));
    QCOMPARE(box.currentText(), QString());
    QCOMPARE(param.writes, Writes{10});
    QComboBox empty;
    mapper.updateComboBox(&param, &empty);
    QCOMPARE(empty.count(), 0);
    mapper.unmapAll();
}

void OrvCamConfigMapperTest::radioButtonsTakeNamesAndValues()
{
    Panel panel(4);
    FakeParams::Enum two({{"Global", 3}, {"Rolling", 8}});
    two.value = 8;
    QCOMPARE(panel.mapper->mapEnumParam(&two, &panel.group), 1);
    QVERIFY(!panel.buttons[0]->isHidden() && !panel.buttons[1]->isHidden());
    QVERIFY(panel.buttons[2]->isHidden() && panel.buttons[3]->isHidden());
    QCOMPARE(panel.buttons[0]->text(), QStringLiteral("Global"));
    QCOMPARE(panel.group.id(panel.buttons[1]), 8);
    QVERIFY(panel.buttons[1]->isChecked());

    // An entry that cannot be chosen stays so while the rest comes and goes.
    two.entries[0]->available = false;
    two.notify();
    QVERIFY(!panel.buttons[0]->isEnabled() && panel.buttons[1]->isEnabled());
    two.writable = false;
    two.notify();
    QVERIFY(!panel.buttons[1]->isEnabled());

    FakeParams::Enum four({{"A", 0}, {nullptr, 0}, {"C", 2}, {"D", 3}});
    four.name = "Other";
    panel.mapper->unmapAll();
    QCOMPARE(panel.mapper->mapEnumParam(&four, &panel.group), 1);
    QVERIFY(panel.buttons[1]->isHidden());
    QVERIFY(!panel.buttons[3]->isHidden() && panel.buttons[3]->isEnabled());
    panel.mapper->unmapAll();

    // A button that is left over does not stand for what it stood for before.
    FakeParams::Enum shifted({{nullptr, 0}, {"A", 0}, {"B", 1}});
    QCOMPARE(panel.mapper->mapEnumParam(&shifted, &panel.group), 1);
    QVERIFY(panel.buttons[1]->isChecked());
    panel.mapper->unmapAll();

    // 64 bits do not fit in the identifiers of buttons.
    FakeParams::Enum wide({{"None", -1}, {"Huge", int64Max}, {"Low", int64Min}});
    wide.value = int64Max;
    panel.mapper->mapEnumParam(&wide, &panel.group);
    QVERIFY(DialogTest::show(panel.window));
    QVERIFY(panel.buttons[1]->isChecked());
    for (const int button : {0, 2, 1})
        DialogTest::clickMark(panel.buttons[button]);
    QCOMPARE(wide.writes, (Writes{-1, int64Min, int64Max}));
    panel.mapper->unmapAll();
}

void OrvCamConfigMapperTest::tabsAreNamedRemovedAndEnabled()
{
    Panel panel(6);
    FakeParams::Enum two({{"FrameA", 0}, {"FrameB", 1}});
    two.value = 1;
    two.entries[0]->available = false;
    QCOMPARE(panel.mapper->mapEnumParam(&two, &panel.tabs), 1);
    QCOMPARE(panel.tabs.count(), 4); // of the four that are too many, every other one is left
    QCOMPARE(panel.tabs.tabText(0), QStringLiteral("FrameA"));
    QCOMPARE(panel.tabs.tabText(1), QStringLiteral("FrameB"));
    QCOMPARE(panel.tabs.currentIndex(), 1);
    QVERIFY(!panel.tabs.isTabEnabled(0) && panel.tabs.isTabEnabled(1));
    panel.mapper->unmapAll();

    FakeParams::Enum holed({{nullptr, 0}, {"Second", 1}, {"Third", 2}, {"Fourth", 3}, {"Fifth", 4}});
    holed.value = 2;
    panel.mapper->mapEnumParam(&holed, &panel.tabs);
    QCOMPARE(panel.tabs.count(), 4);
    QVERIFY(!panel.tabs.isTabVisible(0));
    QCOMPARE(panel.tabs.currentIndex(), 2);
    QVERIFY(DialogTest::show(panel.window));
    panel.tabs.tabBar()->setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(panel.tabs.tabBar(), Qt::Key_Left); // not as far as the hidden one
    QCOMPARE(holed.writes, Writes{1});
    panel.mapper->unmapAll();
}

void OrvCamConfigMapperTest::aCommandWaitsForItsTimer()
{
    Panel panel;
    auto timer = std::make_unique<QTimer>();
    timer->setInterval(3600000);
    panel.commandParam.answer = OrvCamErr_InvalidState;
    panel.mapper->mapCommandParam(&panel.commandParam, &panel.command, timer.get());
    QVERIFY(DialogTest::show(panel.window));
    QTest::mouseClick(&panel.command, Qt::LeftButton);
    QVERIFY(!panel.command.isEnabled());
    QVERIFY(timer->isActive());
    QCOMPARE(takeMessage(), refusal("Feature", "Invalid state"));
    QCOMPARE(panel.commandParam.writes, Writes{1});
    panel.command.setEnabled(true);
    timer.reset();
    QTest::mouseClick(&panel.command, Qt::LeftButton);
    QVERIFY(panel.command.isEnabled()); // nobody would enable it again
    QCOMPARE(takeMessage(), refusal("Feature", "Invalid state"));
    panel.mapper->unmapAll();
}

void OrvCamConfigMapperTest::aFeatureHasOneControl()
{
    FakeParams::Int param;
    auto first = std::make_unique<QtOrvSpinBox>();
    QtOrvSpinBox second;
    OrvCamConfigMapper mapper;
    QSignalSpy destroyed(first.get(), &QObject::destroyed);
    mapper.mapIntParam(&param, first.get());
    mapper.mapIntParam(&param, &second);
    QVERIFY(!first->isEnabled() && second.isEnabled());
    first->setValue(9);
    QCOMPARE(param.writes, Writes());
    second.setValue(8);
    QCOMPARE(param.writes, Writes{8});
    QCOMPARE(param.sinks.size(), std::size_t(1));
    mapper.mapIntParam(&param, &second);
    QVERIFY(second.isEnabled());
    first.reset();
    QCOMPARE(destroyed.size(), 1); // no user signal
    mapper.unmapAll();
}

void OrvCamConfigMapperTest::unboundControlsAreLeftAlone()
{
    Panel panel;
    panel.bind();
    panel.mapper->unmapParam(&panel.spinParam, &panel.spin);
    QVERIFY(panel.spinParam.sinks.empty());
    QVERIFY(!panel.spin.isEnabled());
    QVERIFY(panel.label.isEnabled()); // a companion is not touched
    panel.spinParam.value = 77;
    panel.mapper->OnParameterUpdate(&panel.spinParam);
    panel.mapper->unmapParam(&panel.spinParam, &panel.spin);
    QCOMPARE(panel.spin.value(), 0);
    panel.spin.setValue(5);
    QCOMPARE(panel.writes(), Writes());

    FakeParams::Int namesake;
    namesake.name = "Slider";
    namesake.value = 50;
    panel.mapper->OnParameterUpdate(&namesake); // what is reported is shown
    QCOMPARE(panel.sliderSpin.value(), 50);
    panel.mapper->unmapParam(&namesake, &panel.sliderSpin);
    QVERIFY(panel.sliderParam.sinks.empty()); // of the one that was bound
}

void OrvCamConfigMapperTest::aRefreshMayUnbindAndDestroy()
{
    Panel panel;
    panel.bind();
    const auto react = [&](const std::function<void()> &reaction) {
        QObject::connect(&panel.spin, QOverload<int>::of(&QtOrvSpinBox::valueChanged), &panel.window, reaction);
        ++panel.spinParam.value;
        panel.spinParam.notify();
    };
    react([&] { panel.mapper->unmapParam(&panel.spinParam, &panel.spin); });
    QVERIFY(!panel.spin.isEnabled()); // not enabled again by the rest of the refresh
    panel.mapper->mapIntParam(&panel.spinParam, &panel.spin, {&panel.label});
    react([&] { panel.mapper->mapIntParam(&panel.spinParam, &panel.sliderSpin, nullptr); });
    QCOMPARE(panel.sliderSpin.value(), 2);
    QVERIFY(!panel.spin.isEnabled() && panel.sliderSpin.isEnabled());
    panel.mapper->mapIntParam(&panel.spinParam, &panel.spin, {&panel.label});
    react([&] {
        panel.mapper->unmapAll();
        panel.mapper.reset();
    });
    QVERIFY(!panel.mapper);
    QVERIFY(!panel.spin.isEnabled());
}

void OrvCamConfigMapperTest::aWriteMayDestroyTheMapper()
{
    Panel panel;
    panel.bind();
    QVERIFY(DialogTest::show(panel.window));
    panel.spinParam.answer = OrvCamErr_NoDevice;
    panel.spinParam.whileWriting = [&] {
        panel.mapper->unmapAll();
        panel.mapper.reset();
    };
    DialogTest::enter(panel.spin.spinBox(), "42");
    QCOMPARE(takeMessage(), refusal("Spin", "No device"));
}

void OrvCamConfigMapperTest::otherThreadsAreHeardOnTheGuiThread()
{
    Panel panel;
    panel.bind();
    panel.spinParam.value = 55;
    panel.sliderParam.value = 66;
    std::thread([&] {
        for (int i = 0; i < 100000; ++i)
            panel.spinParam.notify(); // put together
        panel.sliderParam.notify();
    }).join();
    QCOMPARE(panel.spin.value(), 0);
    panel.mapper->unmapParam(&panel.sliderParam, &panel.sliderSpin);
    QTRY_COMPARE(panel.spin.value(), 55);
    QCOMPARE(panel.sliderSpin.value(), 0);
    QCOMPARE(panel.writes(), Writes());
}

void OrvCamConfigMapperTest::describesErrors()
{
    QWidget window;
    QVERIFY(DialogTest::show(window));
    FakeParams::Int param;
    OrvCamConfigMapper::showErrorMessage(OrvCamErr_Ok, &window, &param);
    QVERIFY(!shownMessage());
    const std::tuple<int, const char *, const char *> errors[] = {
        {-40001, "Feature", "Unknown error"},
        {1, nullptr, "Unknown code"},
        {-40204, "Frame_ExposureLines", "GenICam: Parameter is out of range"},
        {-40206, "<b>%2 \u00fc</b>", "GenICam: Invalid argument"}};
    for (const auto &[code, name, description] : errors) {
        param.name = name;
        OrvCamConfigMapper::showErrorMessage(OrvCamErr(code), &window, &param);
        QCOMPARE(takeMessage(), refusal(name, description));
    }
}

void OrvCamConfigMapperTest::aMessageSurvivesWhatHappensToItsParent()
{
    FakeParams::Int param;
    auto window = std::make_unique<QWidget>();
    QVERIFY(DialogTest::show(*window));
    OrvCamConfigMapper::showErrorMessage(OrvCamErr_NoDevice, window.get(), &param);
    const QPointer<QMessageBox> box = shownMessage();
    OrvCamConfigMapper::showErrorMessage(OrvCamErr_NoDevice, window.get(), &param); // the same once more
    QCOMPARE(window->findChildren<QMessageBox *>().size(), 1);
    OrvCamConfigMapper::showErrorMessage(OrvCamErr_InvalidState, window.get(), &param);
    QCOMPARE(window->findChildren<QMessageBox *>().size(), 2);
    window->setEnabled(false); // as when the camera has gone
    QCOMPARE(takeMessage(), refusal("Feature", "Invalid state"));
    QTRY_COMPARE(shownMessage(), box.data());
    window.reset();
    QVERIFY(!box);
    OrvCamConfigMapper::showErrorMessage(OrvCamErr_NoDevice, nullptr, nullptr);
    QCOMPARE(takeMessage(), refusal("", "No device"));
}

ORV_TEST_MAIN(OrvCamConfigMapperTest)

#include "tst_orvcamconfigmapper.moc"
