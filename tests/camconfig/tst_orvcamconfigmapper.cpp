#include "dialogtest.h"
#include "fakeparams.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

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
        for (QWidget *const control :
             {static_cast<QWidget *>(&combo), static_cast<QWidget *>(&check), static_cast<QWidget *>(&tabs),
              static_cast<QWidget *>(&command), static_cast<QWidget *>(&toggle), static_cast<QWidget *>(&spin),
              static_cast<QWidget *>(&sliderSpin), static_cast<QWidget *>(&label)})
            column.addWidget(control);
        for (int i = 0; i < buttonCount; ++i) {
            buttons.append(new QRadioButton(&window));
            column.addWidget(buttons.last());
            group.addButton(buttons.last());
            tabs.addTab(new QWidget, QStringLiteral("page"));
        }
        group.setExclusive(true);
    }

    /** Binds every control. */
    void bind(TenTimes *converter = nullptr)
    {
        comboParam.name = "Combo";
        checkParam.name = "Check";
        groupParam.name = "Group";
        tabParam.name = "Tabs";
        commandParam.name = "Command";
        toggleParam.name = "Toggle";
        spinParam.name = "Spin";
        sliderParam.name = "Slider";
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

    std::vector<QWidget *> controls()
    {
        return {&combo, &check, buttons.first(), &tabs, &command, &toggle, &spin, &sliderSpin};
    }

    Writes writes() const
    {
        Writes all;
        for (const Writes *const some :
             {&comboParam.writes, &checkParam.writes, &groupParam.writes, &tabParam.writes, &commandParam.writes,
              &toggleParam.writes, &spinParam.writes, &sliderParam.writes})
            all.insert(all.end(), some->begin(), some->end());
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

bool isItemEnabled(const QComboBox &box, int row)
{
    return qobject_cast<QStandardItemModel *>(box.model())->item(row)->isEnabled();
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(Panel &)>)
Q_DECLARE_METATYPE(Writes)

class OrvCamConfigMapperTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aUserActionWritesOnce_data();
    void aUserActionWritesOnce();
    void aRefusedWriteTellsAndKeepsTheEntry();
    void aRefreshShowsAndSignalsButWritesNothing();
    void nothingIsWrittenWhileAControlIsDetached();
    void nullBindsNothing();
    void controlsFollowTheirParameter();
    void showsIntegers_data();
    void showsIntegers();
    void refreshesKindsThatOthersBind();
    void comboBoxPassesOverNullEntries();
    void comboBoxShowsNothingForAnUnknownValue();
    void radioButtonsTakeNamesAndValues();
    void radioButtonsStandForAnyValue();
    void tabsAreNamedRemovedAndEnabled();
    void aCommandWaitsForItsTimer();
    void aFeatureHasOneControl();
    void unboundControlsAreLeftAlone();
    void aRefreshMayUnbindAndDestroy();
    void aWriteMayDestroyTheMapper();
    void otherThreadsAreHeardOnTheGuiThread();
    void describesErrors_data();
    void describesErrors();
    void aMessageSurvivesWhatHappensToItsParent();
    void popUpSlidersFitTheirFields();
};

void OrvCamConfigMapperTest::aUserActionWritesOnce_data()
{
    QTest::addColumn<std::function<void(Panel &)>>("act");
    QTest::addColumn<Writes>("writes");
    const auto row = [](const char *name, std::function<void(Panel &)> act, const Writes &writes) {
        QTest::newRow(name) << act << writes;
    };
    row("combo box, a name outside ASCII", [](Panel &p) { QTest::keyClick(&p.combo, Qt::Key_End); }, {2});
    row("check box", [](Panel &p) { QTest::mouseClick(&p.check, Qt::LeftButton, {}, QPoint(8, p.check.height() / 2)); },
        {1});
    row("radio button, the value of its entry",
        [](Panel &p) { QTest::mouseClick(p.buttons[1], Qt::LeftButton, {}, QPoint(8, p.buttons[1]->height() / 2)); },
        {7});
    row("tab",
        [](Panel &p) { QTest::mouseClick(p.tabs.tabBar(), Qt::LeftButton, {}, p.tabs.tabBar()->tabRect(1).center()); },
        {1});
    row("command", [](Panel &p) { QTest::mouseClick(&p.command, Qt::LeftButton); }, {1});
    row("boolean", [](Panel &p) { QTest::mouseClick(&p.toggle, Qt::LeftButton); }, {1});
    row("spin box, only what is committed", [](Panel &p) { DialogTest::enter(p.spin.spinBox(), "42"); }, {42});
    row("slider spin box, converted", [](Panel &p) { DialogTest::enter(p.sliderSpin.spinBox(), "420"); }, {42});
}

void OrvCamConfigMapperTest::aUserActionWritesOnce()
{
    QFETCH(std::function<void(Panel &)>, act);
    QFETCH(Writes, writes);
    TenTimes converter;
    Panel panel;
    panel.toggle.setCheckable(true);
    panel.bind(&converter);
    panel.bind(&converter); // twice makes no second write
    QVERIFY(DialogTest::show(panel.window));
    act(panel);
    QCOMPARE(panel.writes(), writes);
    QVERIFY(!shownMessage());

    for (FakeParams::Fake *const param : panel.params())
        param->writable = false;
    for (QWidget *const control : panel.controls())
        QVERIFY(control->isEnabled()); // nothing was said yet
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

    QTest::mouseClick(panel.buttons[2], Qt::LeftButton, {}, QPoint(8, panel.buttons[2]->height() / 2));
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
    QCOMPARE(mapper.mapEnumParam(noEnum, &panel.combo), 0);
    QCOMPARE(mapper.mapEnumParam(noEnum, &panel.check), 0);
    QCOMPARE(mapper.mapEnumParam(noEnum, &panel.group), 0);
    QCOMPARE(mapper.mapEnumParam(noEnum, &panel.tabs), 0);
    QCOMPARE(mapper.mapCommandParam(nullptr, &panel.command, nullptr), 0);
    QCOMPARE(mapper.mapBooleanParam(nullptr, &panel.toggle), 0);
    QCOMPARE(mapper.mapIntParam(noInt, &panel.spin, {&panel.label, nullptr}), 0);
    QCOMPARE(mapper.mapIntParam(noInt, &panel.sliderSpin, nullptr), 0);
    for (QWidget *const control : panel.controls())
        QVERIFY(!control->isEnabled());
    QVERIFY(!panel.label.isEnabled());

    QButtonGroup empty;
    QCOMPARE(mapper.mapEnumParam(&panel.groupParam, &empty), 0);
    QVERIFY(panel.groupParam.sinks.empty());
    mapper.OnParameterUpdate(nullptr);
    mapper.updateComboBox(noEnum, &panel.combo);
    mapper.updateSpinBox(&panel.spinParam, static_cast<QSpinBox *>(nullptr));
    mapper.unmapParam(nullptr, nullptr);
    panel.label.setEnabled(true);
    mapper.unmapParam(nullptr, &panel.label);
    QVERIFY(!panel.label.isEnabled());
}

void OrvCamConfigMapperTest::controlsFollowTheirParameter()
{
    Panel panel;
    panel.bind();
    const auto state = [&](FakeParams::Fake *param, bool available, bool writable) {
        param->available = available;
        param->writable = writable;
        param->notify();
    };
    const auto params = panel.params();
    const auto controls = panel.controls();
    for (std::size_t i = 0; i < params.size(); ++i) {
        QVERIFY(controls[i]->isEnabled());
        state(params[i], false, true);
        QVERIFY(!controls[i]->isEnabled());
        state(params[i], true, false);
        QVERIFY(!controls[i]->isEnabled());
        state(params[i], true, true);
        QVERIFY(controls[i]->isEnabled());
    }
    panel.spinParam.value = 12;
    panel.spinParam.readable = false;
    state(&panel.spinParam, true, false);
    QVERIFY(!panel.label.isEnabled());
    QCOMPARE(panel.spin.value(), 0); // not read

    panel.comboParam.available = false;
    QCOMPARE(panel.mapper->mapEnumParam(&panel.comboParam, &panel.combo), 1);
    QVERIFY(!panel.combo.isEnabled());
    QCOMPARE(panel.combo.count(), 3);
}

void OrvCamConfigMapperTest::showsIntegers_data()
{
    using Number = std::int64_t;
    QTest::addColumn<QVector<Number>>("device"); // minimum, maximum, increment, value
    QTest::addColumn<bool>("converts");
    QTest::addColumn<QVector<int>>("shown");
    const auto row = [](const char *name, const QVector<Number> &device, bool converts, const QVector<int> &shown) {
        QTest::newRow(name) << device << converts << shown;
    };
    row("plain", {-5, 40, 5, 35}, false, {-5, 40, 5, 35});
    row("between the steps", {1, 40, 10, 17}, false, {1, 40, 10, 17});
    row("beyond an int", {0, 5000000000, 1, 4000000000}, false, {0, intMax, 1, intMax});
    row("increment 0", {0, 10, 0, 3}, false, {0, 10, 1, 3});
    row("negative increment", {0, 10, -4, 3}, false, {0, 10, 1, 3});
    row("all of 64 bits", {int64Min, int64Max, int64Max, int64Min}, false, {intMin, intMax, intMax, intMin});
    row("converted", {1, 40, 2, 9}, true, {10, 400, 20, 90});
    row("converted beyond an int", {0, 900000000, 0, 800000000}, true, {0, intMax, 1, intMax});
}

void OrvCamConfigMapperTest::showsIntegers()
{
    QFETCH(QVector<std::int64_t>, device);
    QFETCH(bool, converts);
    QFETCH(QVector<int>, shown);
    FakeParams::Int param;
    param.min = device[0];
    param.max = device[1];
    param.increment = device[2];
    param.value = device[3];
    TenTimes converter;
    OrvCamConfigMapper mapper;
    const auto check = [&](const auto &control) {
        const QVector<int> now{control.minimum(), control.maximum(), control.singleStep(), control.value()};
        QCOMPARE(now, shown);
    };
    QtOrvSliderSpinBox sliderSpin;
    mapper.mapIntParam(&param, &sliderSpin, converts ? &converter : nullptr);
    check(sliderSpin);
    QSlider slider;
    mapper.updateSlider(&param, &slider, converts ? &converter : nullptr);
    check(slider);
    if (converts)
        return;
    QtOrvSpinBox spin;
    mapper.mapIntParam(&param, &spin);
    check(spin);
    QSpinBox plain;
    mapper.updateSpinBox(&param, &plain);
    check(plain);
    QCOMPARE(param.writes, Writes());
    mapper.unmapAll();
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
    QVERIFY(isItemEnabled(box, 0) && !isItemEnabled(box, 1) && isItemEnabled(box, 2));
    QTest::keyClick(&box, Qt::Key_Up); // not the one that cannot be chosen
    QCOMPARE(param.writes, Writes{10});
    param.entries[2]->available = true;
    param.notify();
    QVERIFY(isItemEnabled(box, 1));
    mapper.unmapAll();
}

void OrvCamConfigMapperTest::comboBoxShowsNothingForAnUnknownValue()
{
    FakeParams::Enum param({{"First", 10}, {"Second", 20}});
    param.value = 10;
    QComboBox box;
    OrvCamConfigMapper mapper;
    mapper.mapEnumParam(&param, &box);
    param.value = 99;
    param.notify();
    QCOMPARE(box.currentText(), QString());
    QCOMPARE(param.writes, Writes());
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
}

void OrvCamConfigMapperTest::radioButtonsStandForAnyValue()
{
    Panel panel;
    FakeParams::Enum wide({{"None", -1}, {"Huge", int64Max}, {"Low", int64Min}});
    wide.value = int64Max;
    panel.mapper->mapEnumParam(&wide, &panel.group);
    QVERIFY(DialogTest::show(panel.window));
    QVERIFY(panel.buttons[1]->isChecked());
    for (const int button : {0, 2, 1})
        QTest::mouseClick(panel.buttons[button], Qt::LeftButton, {}, QPoint(8, panel.buttons[button]->height() / 2));
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
    panel.mapper->unmapAll();
}

void OrvCamConfigMapperTest::aCommandWaitsForItsTimer()
{
    Panel panel;
    QTimer timer;
    timer.setInterval(3600000);
    panel.commandParam.answer = OrvCamErr_InvalidState;
    panel.mapper->mapCommandParam(&panel.commandParam, &panel.command, &timer);
    QVERIFY(DialogTest::show(panel.window));
    QTest::mouseClick(&panel.command, Qt::LeftButton);
    QVERIFY(!panel.command.isEnabled());
    QVERIFY(timer.isActive());
    QCOMPARE(takeMessage(), refusal("Feature", "Invalid state"));
    QCOMPARE(panel.commandParam.writes, Writes{1});
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
    panel.mapper->OnParameterUpdate(&namesake);
    QCOMPARE(panel.sliderSpin.value(), 0);
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
        panel.spinParam.notify();
        panel.sliderParam.notify();
    }).join();
    QCOMPARE(panel.spin.value(), 0);
    panel.mapper->unmapParam(&panel.sliderParam, &panel.sliderSpin);
    QTRY_COMPARE(panel.spin.value(), 55);
    QCOMPARE(panel.sliderSpin.value(), 0);
    QCOMPARE(panel.writes(), Writes());
}

void OrvCamConfigMapperTest::describesErrors_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const auto row = [](int code, const char *name, const char *description) {
        QTest::addRow("%d", code) << code << QString::fromUtf8(name)
                                  << (description ? refusal(name, description) : QString());
    };
    row(0, "Feature", nullptr);
    row(-40001, "Feature", "Unknown error");
    row(-40052, "Feature", "Unknown code");
    row(1, "", "Unknown code");
    row(-40204, "Frame_ExposureLines", "GenICam: Parameter is out of range");
    row(-40206, "<b>%2 \u00fc</b>", "GenICam: Invalid argument");
}

void OrvCamConfigMapperTest::describesErrors()
{
    QFETCH(int, code);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QWidget window;
    QVERIFY(DialogTest::show(window));
    const QByteArray utf8 = name.toUtf8();
    FakeParams::Int param;
    param.name = name.isEmpty() ? nullptr : utf8.constData();
    OrvCamConfigMapper::showErrorMessage(OrvCamErr(code), &window, &param);
    QCOMPARE(shownMessage() != nullptr, !text.isEmpty());
    if (!text.isEmpty())
        QCOMPARE(takeMessage(), text);
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

void OrvCamConfigMapperTest::popUpSlidersFitTheirFields()
{
    QWidget window;
    QVBoxLayout column(&window);
    QtOrvSpinBox spin;
    spin.setLeftLabelText(QStringLiteral("A caption"));
    column.addWidget(&spin);
    QVERIFY(DialogTest::show(window));
    const QSize hint = spin.sizeHint();
    const int length = hint.width() - spin.leftLabel()->width();
    OrvCamConfigMapper::resizeVerticalSlider(&spin);
    QCOMPARE(spin.slider()->height(), length);
    QCOMPARE(spin.slider()->width(), std::max(hint.height(), spin.slider()->minimumSizeHint().width()));
    spin.setSliderOrientation(Qt::Horizontal);
    OrvCamConfigMapper::resizeHorizontalSlider(&spin);
    QCOMPARE(spin.slider()->width(), length);
}

ORV_TEST_MAIN(OrvCamConfigMapperTest)

#include "tst_orvcamconfigmapper.moc"
