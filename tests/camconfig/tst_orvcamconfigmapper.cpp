// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "dialogtest.h"
#include "fakeparams.h"
#include "input.h"
#include "orvtest.h"

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

} // namespace

class OrvCamConfigMapperTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** It goes when it is left, and when the camera reports. */
    void aRefusedEntryIsMarkedUntilItGoes()
    {
        for (const bool isReported : {false, true}) {
            Panel panel;
            panel.toggle.setCheckable(true);
            panel.groupParam.value = 5;
            panel.bind();
            QVERIFY(DialogTest::show(panel.window));
            struct Row
            {
                FakeParams::Fake &param;
                QWidget *marked;
                std::function<void()> enter;
                const char *entered;
                QString cameras;
                bool isWrittenAgain; ///< when entered again; a click on a check box enters the opposite
            };
            const auto clickLast = [&] { DialogTest::clickMark(panel.buttons[2]); };
            const auto chooseLast = [&] {
                panel.combo.setFocus();
                expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
                panel.combo.showPopup();
                QTest::keyClick(panel.combo.view(), Qt::Key_End);
                QTest::keyClick(panel.combo.view(), Qt::Key_Return);
            };
            const auto toggle = [&] { QTest::mouseClick(&panel.toggle, Qt::LeftButton); };
            const auto type = [&] { DialogTest::enter(panel.spin.spinBox(), "42"); };
            const QString off = OrvTest::translated("OrvGui::OrvCamConfigMapper", "off");
            const Row rows[] = {{panel.comboParam, &panel.combo, chooseLast, "Weiß", QStringLiteral("Aus"), true},
                                {panel.groupParam, panel.buttons[2], clickLast, "High", QStringLiteral("Low"), true},
                                {panel.toggleParam, &panel.toggle, toggle, "true", off, false},
                                {panel.spinParam, &panel.spin, type, "42", QStringLiteral("0"), true}};
            for (const Row &row : rows) {
                row.param.answer = OrvCamErr_GenICamOutOfRange;
                const ControlWatch *const watch = ControlWatch::of(row.marked);
                row.marked->setFocus();
                for (int i = 0; i <= int(row.isWrittenAgain); ++i) {
                    row.enter();
                    QTRY_VERIFY(shownMessage() && shownMessage()->isAncestorOf(QApplication::focusWidget()));
                    QVERIFY(!takeMessage().isEmpty()); // whose focus is no leaving
                    QVERIFY(watch->isMarked());
                    QVERIFY2(row.marked->toolTip().contains(row.cameras), qPrintable(row.marked->toolTip()));
                    QCOMPARE(DialogTest::shownBy(row.marked), QString::fromUtf8(row.entered));
                }
                QCOMPARE(row.param.writes.size(), std::size_t(row.isWrittenAgain ? 2 : 1));
                panel.window.activateWindow();
                QTRY_VERIFY(QApplication::focusWidget());
                isReported ? row.param.notify() : panel.command.setFocus();
                QVERIFY(!watch->isMarked());
                QVERIFY(row.marked->toolTip().isEmpty());
                QVERIFY(DialogTest::shownBy(row.marked) != QString::fromUtf8(row.entered));
            }
        }
    }

    void refusedNumbersAndPagesGoBack()
    {
        Panel panel;
        panel.bind();
        QVERIFY(DialogTest::show(panel.window));
        panel.sliderParam.answer = panel.tabParam.answer = OrvCamErr_GenICamOutOfRange;
        DialogTest::enter(panel.sliderSpin.spinBox(), "42");
        QVERIFY(!takeMessage().isEmpty());
        QSlider *const slider = panel.sliderSpin.slider()->slider();
        QTest::mouseClick(slider, Qt::LeftButton, {}, handle(*slider)); // a press on the handle enters nothing
        QCOMPARE(panel.sliderParam.writes, Writes{42});
        panel.sliderParam.whileWriting = [&] { panel.sliderParam.notify(); }; // of the value that stays
        DialogTest::enter(panel.sliderSpin.spinBox(), "43");
        QVERIFY(!takeMessage().isEmpty());
        QVERIFY(!ControlWatch::of(&panel.sliderSpin)->isMarked());
        QCOMPARE(panel.sliderSpin.value(), 0);

        // A page would keep controls for an entry that is not the camera's.
        QTest::mouseClick(panel.tabs.tabBar(), Qt::LeftButton, {}, panel.tabs.tabBar()->tabRect(1).center());
        QVERIFY(!takeMessage().isEmpty());
        QCOMPARE(panel.tabs.currentIndex(), 0);
    }

    /** Not by what the control shows, which the camera may have left behind. */
    void whatIsNewsIsDecidedByTheCamera()
    {
        Panel panel;
        panel.toggle.setCheckable(true);
        panel.bind();
        QVERIFY(DialogTest::show(panel.window));
        panel.spinParam.value = panel.sliderParam.value = 20; // of which nothing is said
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
    }

    void whatCannotBeShownIsToldAllTheSame()
    {
        Panel panel;
        panel.bind();
        QVERIFY(DialogTest::show(panel.window));
        panel.groupParam.value = 1234; // without a button
        panel.groupParam.notify();
        QVERIFY(!panel.group.checkedButton());
        QVERIFY(panel.buttons[0]->toolTip().contains(QStringLiteral("1234")));
        for (const std::int64_t value : {std::int64_t(5000000000), std::int64_t(5)}) { // beyond the box, and within
            panel.spinParam.max = panel.spinParam.value = value;
            panel.spinParam.notify();
            QCOMPARE(panel.spin.toolTip().contains(QString::number(value)), value > intMax);
        }
        panel.sliderParam.value = 150; // beyond the maximum, which it shows
        panel.sliderParam.notify();
        DialogTest::enter(panel.sliderSpin.spinBox(), "100");
        QCOMPARE(panel.sliderParam.writes, Writes{100});

        panel.sliderParam.readAnswer = OrvCamErr_GenICamAccessError; // neither 0 nor any other number is the camera's
        panel.sliderParam.notify();
        QCOMPARE(panel.sliderSpin.spinBox()->text(), QString());
        DialogTest::enter(panel.sliderSpin.spinBox(), "0"); // which a failed read gives, too
        QCOMPARE(panel.sliderParam.writes, (Writes{100, 0}));
        panel.sliderParam.readAnswer = OrvCamErr_Ok;
        panel.sliderParam.notify();
        QCOMPARE(panel.sliderSpin.spinBox()->text(), QStringLiteral("0"));

        panel.sliderParam.reports = false; // a camera that says nothing of what it made of the entry
        panel.sliderParam.afterWriting = [&] { panel.sliderParam.value = 40; };
        DialogTest::enter(panel.sliderSpin.spinBox(), "42");
        QCOMPARE(panel.sliderSpin.value(), 40);
    }

    void aDroppedEntryIsTakenBack()
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

    void showsIntegers()
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
            QtOrvSliderSpinBox box;
            QSlider slider;
            mapper.mapIntParam(&param, &box, converter);
            QCOMPARE((QVector<int>{box.minimum(), box.maximum(), box.singleStep(), box.value()}), row.shown);
            mapper.updateSlider(&param, &slider, converter);
            QCOMPARE(slider.maximum(), row.plainSliderMaximum ? row.plainSliderMaximum : row.shown[1]);
            QCOMPARE(slider.singleStep(), row.shown[2]);
            QCOMPARE(slider.value(), row.shown[3]);
            QCOMPARE(param.writes, Writes());
            mapper.unmapAll();
        }
    }

    void refreshesKindsThatOthersBind()
    {
        using Data = OrvCamConfigMapData;
        FakeParams::Int param;
        param.max = 5000000000;
        TenTimes converter;
        QLineEdit edit;
        QIntValidator validator;
        edit.setValidator(&validator);
        QSlider slider;
        QLabel wrong; // no line edit
        OrvCamConfigMapper mapper(3000);
        mapper.addRecord(&param, {Data::LineEdit, &edit, nullptr});
        mapper.addRecord(&param, {Data::Slider, &slider, &converter});
        mapper.addRecord(&param, {Data::LineEdit, &wrong, nullptr});
        for (const auto &[value, text, position] : {std::tuple(123, "123", 1230), std::tuple(4000, "3000", 3000)}) {
            param.value = value;
            param.notify();
            QCOMPARE(edit.text(), QLatin1String(text));
            QCOMPARE(slider.value(), position);
        }
        QCOMPARE(validator.top(), 3000);
        param.writable = false;
        param.notify();
        QVERIFY(!edit.isEnabled() && !wrong.isEnabled());
        mapper.unmapAll();
    }

    void comboBoxPassesOverNullEntries()
    {
        FakeParams::Enum param({{"First", 10}, {nullptr, 0}, {"Second", 20}, {"Third", 30}});
        param.value = 30;
        param.entries[2]->available = false;
        QComboBox box;
        OrvCamConfigMapper mapper;
        QCOMPARE(mapper.mapEnumParam(&param, &box), 1);
        QCOMPARE(box.count(), 3);
        QCOMPARE(box.currentText(), QStringLiteral("Third"));
        QTest::keyClick(&box, Qt::Key_Up); // not to the second, which cannot be chosen
        param.entries[2]->available = true;
        param.notify();
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(param.writes, (Writes{10, 20}));
        param.value = 99; // which no entry stands for
        param.notify();
        QCOMPARE(box.currentText(), QString());
        QVERIFY(box.toolTip().contains(QStringLiteral("99")));
        mapper.unmapAll();
    }

    void radioButtonsTakeNamesAndValues()
    {
        Panel panel(4);
        FakeParams::Enum two({{"Global", 0}, {"Rolling", 8}});
        two.value = 8;
        QCOMPARE(panel.mapper->mapEnumParam(&two, &panel.group), 1);
        QVERIFY(!panel.buttons[1]->isHidden() && panel.buttons[2]->isHidden() && panel.buttons[3]->isHidden());
        QCOMPARE(panel.buttons[0]->text(), QStringLiteral("Global"));
        QCOMPARE(panel.group.id(panel.buttons[1]), 8);
        QVERIFY(panel.buttons[1]->isChecked());
        two.entries[0]->available = false; // and stays so while the rest comes and goes
        two.notify();
        QVERIFY(!panel.buttons[0]->isEnabled() && panel.buttons[1]->isEnabled());
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

    void tabsAreNamedRemovedAndEnabled()
    {
        Panel panel(6);
        FakeParams::Enum two({{"FrameA", 0}, {"FrameB", 1}});
        two.value = 1;
        two.entries[0]->available = false;
        QCOMPARE(panel.mapper->mapEnumParam(&two, &panel.tabs), 1);
        QCOMPARE(panel.tabs.count(), 4); // of the four that are too many, every other one is left
        QCOMPARE(panel.tabs.currentIndex(), 1);
        QVERIFY(!panel.tabs.isTabEnabled(0) && panel.tabs.isTabEnabled(1));
        panel.mapper->unmapAll();

        FakeParams::Enum holed({{nullptr, 0}, {"Second", 1}, {"Third", 2}, {"Fourth", 3}, {"Fifth", 4}});
        holed.value = 2;
        panel.mapper->mapEnumParam(&holed, &panel.tabs);
        QVERIFY(!panel.tabs.isTabVisible(0));
        QCOMPARE(panel.tabs.currentIndex(), 2);
        QVERIFY(DialogTest::show(panel.window));
        panel.tabs.tabBar()->setFocus();
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(panel.tabs.tabBar(), Qt::Key_Left); // not as far as the hidden one
        QCOMPARE(holed.writes, Writes{1});
        panel.mapper->unmapAll();
    }

    void aCommandWaitsForItsTimer()
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
        timer.reset();
        QVERIFY(panel.command.isEnabled()); // nobody would enable it again
        QTest::mouseClick(&panel.command, Qt::LeftButton);
        QVERIFY(panel.command.isEnabled());
        QCOMPARE(takeMessage(), refusal("Feature", "Invalid state"));
        panel.mapper->unmapAll();
    }

    void aFeatureHasOneControl()
    {
        FakeParams::Int param;
        QtOrvSpinBox first;
        QtOrvSpinBox second;
        OrvCamConfigMapper mapper;
        mapper.mapIntParam(&param, &first);
        mapper.mapIntParam(&param, &second);
        QVERIFY(!first.isEnabled() && second.isEnabled());
        first.setValue(9);
        second.setValue(8);
        QCOMPARE(param.writes, Writes{8});
        QCOMPARE(param.sinks.size(), std::size_t(1));
        FakeParams::Int namesake;
        mapper.mapIntParam(&namesake, &second);
        QVERIFY(param.sinks.empty());
        mapper.mapIntParam(&param, &second);
        QVERIFY(second.isEnabled());

        FakeParams::Int other;
        other.name = "Other";
        other.value = 8;
        mapper.mapIntParam(&other, &second); // now a control of that feature alone
        param.value = 5;
        QVERIFY(DialogTest::show(second));
        DialogTest::enter(second.spinBox(), "8");
        QCOMPARE(param.writes, Writes{8});
        mapper.unmapAll();
    }

    void controlsFollowUntilTheyAreUnbound()
    {
        Panel panel;
        QCOMPARE(panel.mapper->mapIntParam(nullptr, &panel.spin, {&panel.label, nullptr}), 0);
        QVERIFY(!panel.spin.isEnabled() && !panel.label.isEnabled());
        QButtonGroup empty;
        QCOMPARE(panel.mapper->mapEnumParam(&panel.groupParam, &empty), 0);
        panel.mapper->OnParameterUpdate(nullptr);
        panel.mapper->updateSpinBox(&panel.spinParam, static_cast<QSpinBox *>(nullptr));
        panel.mapper->unmapParam(nullptr, nullptr);

        panel.bind();
        for (const bool isWritable : {false, true}) {
            panel.spinParam.writable = isWritable;
            panel.spinParam.notify();
            QVERIFY(panel.spin.isEnabled() == isWritable && panel.label.isEnabled() == isWritable);
        }
        panel.mapper->unmapParam(&panel.spinParam, &panel.spin);
        QVERIFY(panel.spinParam.sinks.empty());
        QVERIFY(!panel.spin.isEnabled() && panel.label.isEnabled()); // a companion is not touched
        panel.spinParam.value = 77;
        panel.mapper->OnParameterUpdate(&panel.spinParam);
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

    void aRefreshMayUnbindAndDestroy()
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

    void aWriteMayDestroyTheMapper()
    {
        Panel panel;
        panel.bind();
        QVERIFY(DialogTest::show(panel.window));
        panel.spinParam.answer = OrvCamErr_NoDevice;
        const auto destroy = [&] {
            if (panel.mapper)
                panel.mapper->unmapAll();
            panel.mapper.reset();
        };
        // A field that is disabled says that editing is over.
        QObject::connect(panel.spin.spinBox(), &QAbstractSpinBox::editingFinished, &panel.window, destroy);
        panel.spin.spinBox()->setFocus();
        panel.mapper->unmapAll();
        QVERIFY(!panel.mapper);

        panel.mapper = std::make_unique<OrvCamConfigMapper>();
        panel.bind();
        panel.spinParam.whileWriting = destroy;
        DialogTest::enter(panel.spin.spinBox(), "42");
        QCOMPARE(takeMessage(), refusal("Spin", "No device"));
    }

    /** Two signals, between which a slot runs an event loop, are still one entry. */
    void aNestedLoopMakesNoSecondEntry()
    {
        Panel panel;
        panel.bind();
        QVERIFY(DialogTest::show(panel.window));
        panel.checkParam.answer = OrvCamErr_GenICamAccessError;
        panel.checkParam.whileWriting = [&] {
            QEventLoop loop;
            QTimer::singleShot(5, &loop, [&] {
                DialogTest::enter(panel.spin.spinBox(), "42"); // what is entered meanwhile is
                loop.quit();
            });
            loop.exec();
        };
        DialogTest::clickMark(&panel.check);
        QCOMPARE(panel.checkParam.writes, Writes{1});
        QCOMPARE(panel.spinParam.writes, Writes{42});
        QVERIFY(!takeMessage().isEmpty());
    }

    void otherThreadsAreHeardOnTheGuiThread()
    {
        Panel panel;
        panel.bind();
        panel.spinParam.value = panel.sliderParam.value = 55;
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

    void aMessageSurvivesWhatHappensToItsParent()
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
};

ORV_TEST_MAIN(OrvCamConfigMapperTest)

#include "tst_orvcamconfigmapper.moc"
