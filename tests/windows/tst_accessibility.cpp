// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "allwindows.h"

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QSlider>
#include <QToolButton>
#include <QTranslator>
#include <QTreeView>

#include <algorithm>
#include <climits>
#include <utility>

namespace {

/** Translates every text, so that one that does not go through tr() shows. */
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return mark + QString::fromUtf8(text);
    }

    static QString unmarked(QString text) { return text.remove(mark); }

private:
    static constexpr QChar mark = QChar(0x203B);
};

/** What is wrong, a line each. */
using Faults = QStringList;

QString describe(const QWidget &widget, const QString &name = {})
{
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(), name);
}

/** A composite, whose proxy is one of its parts, does not. */
bool takesFocus(const QWidget &widget)
{
    return widget.focusPolicy() != Qt::NoFocus && !widget.isAncestorOf(widget.focusProxy());
}

/** But for what Qt itself keeps in a menu bar. */
bool isPicture(const QWidget &widget)
{
    if (widget.objectName() == QLatin1String("qt_menubar_ext_button"))
        return false;
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    const auto *const button = qobject_cast<const QAbstractButton *>(&widget);
    return (label && !label->pixmap(Qt::ReturnByValue).isNull()) || (button && !button->icon().isNull());
}

/** The line edit of a spin box is that spin box for assistive tools. */
bool isInnerPart(const QWidget &widget)
{
    return widget.focusProxy() && widget.focusProxy()->isAncestorOf(&widget);
}

/** An editor in the tree is called like its feature, the frames' tabs like the frame that is shown. */
bool isNamedByCamera(const QWidget &widget)
{
    const QWidget *const editor = isInnerPart(widget) ? widget.focusProxy() : &widget;
    return widget.inherits("QTabBar")
        || (editor->parentWidget() && editor->parentWidget()->objectName() == QLatin1String("qt_scrollarea_viewport"));
}

QString faultOf(const QWidget &widget, const QString &name)
{
    static const QRegularExpression word(QStringLiteral("\\p{L}{2}"));
    static const QRegularExpression identifier(QStringLiteral("^[a-z][a-z0-9]*[A-Z_]\\w*$"));
    static const QRegularExpression forTheEye(QStringLiteral("&\\S|\\n|^\\s|\\s$"));
    const QString plain = MarkingTranslator::unmarked(name);
    if (name.isEmpty())
        return QStringLiteral("no name");
    if (!word.match(plain).hasMatch())
        return QStringLiteral("a symbol");
    if (forTheEye.match(plain).hasMatch())
        return QStringLiteral("not as it is spoken");
    if (plain == widget.objectName() || identifier.match(plain).hasMatch())
        return QStringLiteral("an object name");
    return plain == name && !isNamedByCamera(widget) ? QStringLiteral("not translated") : QString();
}

QList<QWidget *> widgetsOf(const QWidget &window)
{
    QList<QWidget *> widgets;
    const auto all = window.findChildren<QWidget *>();
    for (QWidget *const widget : all) {
        if (widget->window() == &window)
            widgets.append(widget);
    }
    return widgets;
}

/** Of all widgets, those that a mapper has hidden too. */
Faults namesAndRoles(const QWidget &window)
{
    Faults faults;
    QHash<QString, const QWidget *> owners;
    const auto widgets = widgetsOf(window);
    for (QWidget *const widget : widgets) {
        if (!takesFocus(*widget) && !isPicture(*widget))
            continue;
        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(widget);
        const QString name = accessible->text(QAccessible::Name);
        const QString who = describe(*widget, name) + QStringLiteral(": ");
        if (const QString fault = faultOf(*widget, name); !fault.isEmpty())
            faults.append(who + fault);
        if (isInnerPart(*widget))
            continue;
        if (accessible->role() == QAccessible::NoRole || accessible->role() == QAccessible::Client)
            faults.append(who + QStringLiteral("no role"));
        if (owners.contains(name))
            faults.append(who + QStringLiteral("the name of ") + describe(*owners.value(name)));
        owners.insert(name, widget);
    }
    return faults;
}

/** Up, and not to another column, or back in the line. */
bool goesBack(const QWidget &from, const QWidget &to)
{
    const QRect a(from.mapToGlobal(QPoint()), from.size());
    const QRect b(to.mapToGlobal(QPoint()), to.size());
    const bool isAbove = b.bottom() < a.top();
    const bool isBefore = b.right() < a.left();
    return isAbove ? b.left() <= a.right() : isBefore && b.top() <= a.bottom();
}

bool isStop(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy() && widget.isVisible() && widget.isEnabled();
}

QWidget *compositeOf(const QWidget *part)
{
    for (QWidget *widget = part->parentWidget(); widget; widget = widget->parentWidget()) {
        if (widget->inherits("QtOrvSliderSpinBox") || widget->inherits("QtOrvGainSlider"))
            return widget;
    }
    return nullptr;
}

/** The stops from the one with the focus on, until one comes again, which has the focus then. */
QList<QWidget *> stopsBy(Qt::Key key, QWidget &window)
{
    QList<QWidget *> stops;
    for (QWidget *now = window.focusWidget(); now && !stops.contains(now); now = window.focusWidget()) {
        stops.append(now);
        QTest::keyClick(now, key);
    }
    return stops;
}

/** Every stop once, from the first to the last as they are read, and round again. */
Faults tabChain(QWidget &window)
{
    Faults faults;
    const auto widgets = widgetsOf(window);
    const auto isAnyStop = [](const QWidget *widget) { return isStop(*widget); };
    if (std::none_of(widgets.begin(), widgets.end(), isAnyStop))
        return faults; // a dialog without a camera
    if (!window.focusWidget() || !isStop(*window.focusWidget()))
        QTest::keyClick(&window, Qt::Key_Tab);
    const QList<QWidget *> chain = stopsBy(Qt::Key_Tab, window);
    if (chain.isEmpty() || window.focusWidget() != chain.first())
        faults.append(QStringLiteral("Tab does not come back"));
    const QList<QWidget *> backwards = stopsBy(Qt::Key_Backtab, window);
    if (!std::is_permutation(chain.begin(), chain.end(), backwards.begin(), backwards.end()))
        faults.append(QStringLiteral("Backtab goes another way"));
    for (QWidget *const widget : widgets) { // now, as of radio buttons only the one with the focus remains a stop
        if (isStop(*widget) && !chain.contains(widget))
            faults.append(describe(*widget) + QStringLiteral(": Tab does not get there"));
    }
    int back = 0;
    for (int i = 0; i < chain.size(); ++i) {
        const QWidget *const from = chain.at(i);
        const QWidget *const to = chain.at((i + 1) % chain.size());
        const bool isWithinComposite = compositeOf(from) && compositeOf(from) == compositeOf(to);
        if (!isWithinComposite && goesBack(*from, *to) && ++back > 1) // once from the end to the beginning
            faults.append(describe(*from) + QStringLiteral(": Tab goes back"));
    }
    return faults;
}

Faults faultsOf(QWidget &window)
{
    return namesAndRoles(window) + tabChain(window);
}

bool show(QWidget &window)
{
    if (window.windowType() == Qt::Popup)
        OrvTest::TestCase::expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

/** The sliders that boxes open, each a window of its own. */
Faults faultsOfPopUps(const QWidget &window)
{
    Faults faults;
    const auto boxes = window.findChildren<QtOrvSpinBox *>();
    for (QtOrvSpinBox *const box : boxes) {
        if (box->window() != &window || !box->toolButton()->isVisible() || !box->isEnabled())
            continue;
        OrvTest::TestCase::expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        QTest::mouseClick(box->toolButton(), Qt::LeftButton);
        if (!box->slider()->isVisible())
            faults.append(describe(*box) + QStringLiteral(": opens no slider"));
        faults += namesAndRoles(*box->slider());
        QTest::keyClick(box->slider()->slider(), Qt::Key_Escape);
    }
    return faults;
}

QWidget *makeValueWidgets(QList<QWidget *> &widgets)
{
    widgets = {new QtOrvSlider(Qt::Horizontal),
               new QtOrvDoubleSlider(Qt::Horizontal),
               new QtOrvSpinBoxVal,
               new QtOrvDoubleSpinBoxVal,
               new QtOrvSpinBoxVal64,
               new QtOrvSpinBox,
               new QtOrvSliderSpinBox,
               new QtOrvGainSlider};
    auto *const window = new QWidget;
    auto *const layout = new QFormLayout(window);
    for (QWidget *const widget : std::as_const(widgets))
        layout->addRow(QStringLiteral(" "), widget);
    return window;
}

} // namespace

/**
 * Assistive tools get to everything that takes the focus, and to every picture, and find it named: in words, translated
 * and nothing else in the window alike. Tab gets to all of it in the order of reading.
 */
class TestAccessibility : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::installTranslator(&m_translator); }
    void cleanupTestCase() { QCoreApplication::removeTranslator(&m_translator); }

    void windows_data() { AllWindows::addRows(); }

    /** With a camera that has all that the windows show, and one that lacks much of it. */
    void windows()
    {
        QFETCH(AllWindows::Maker, make);
        const SimTest::Held<OrvCam::System> system = SimTest::getSystem();
        for (const char *const id : {SimTest::twoFrame, SimTest::monochrome}) {
            const SimTest::Held<OrvCam::Device> camera = SimTest::open(id);
            const std::unique_ptr<QWidget> window(make(*system, *camera));
            QVERIFY(show(*window));
            QCOMPARE((faultsOf(*window) + faultsOfPopUps(*window)).join(QLatin1Char('\n')), QString());
        }
    }

    void editorsOfFeatures()
    {
        const SimTest::Held<OrvCam::Device> camera = SimTest::open(SimTest::twoFrame);
        OrvGui::OrvGenParamTreeView view(camera->GetCameraParameters(nullptr));
        QVERIFY(show(view));
        view.findChild<QComboBox *>(QStringLiteral("cbVisibility"))->setCurrentIndex(2);
        auto *const tree = view.findChild<QTreeView *>(QStringLiteral("treeView"));
        tree->expandAll();
        QSet<QString> classes;
        for (QModelIndex name = tree->model()->index(0, 0); name.isValid(); name = tree->indexBelow(name)) {
            const QModelIndex row = name.siblingAtColumn(1);
            tree->setCurrentIndex(row);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the editor before
            QWidget *const editor = tree->indexWidget(row);
            if (!editor)
                continue;
            classes.insert(QLatin1String(editor->metaObject()->className()));
            QCOMPARE(QAccessible::queryAccessibleInterface(editor)->text(QAccessible::Name), name.data().toString());
            QCOMPARE(namesAndRoles(view).join(QLatin1Char('\n')), QString());
        }
        QCOMPARE(classes.size(), 6); // numbers with and without decimals, choices, commands, texts and the rest
    }

    /** By an accessible name, by a label or by a caption; also when a host renames them later. */
    void valueWidgets()
    {
        using Namer = std::function<void(QWidget & widget, const QString &name)>;
        const Namer byName = [](QWidget &widget, const QString &name) { widget.setAccessibleName(name); };
        const Namer byLabel = [](QWidget &widget, const QString &name) {
            auto *const layout = static_cast<QFormLayout *>(widget.parentWidget()->layout());
            static_cast<QLabel *>(layout->labelForField(&widget))->setText(name + QLatin1Char(':'));
        };
        const Namer byCaption = [](QWidget &widget, const QString &name) {
            const bool hasCaption = widget.setProperty("topLabelText", QString(name).insert(1, QLatin1Char('&')));
            if (!hasCaption)
                widget.setAccessibleName(name);
        };
        for (const Namer &setName : {byName, byLabel, byCaption}) {
            QList<QWidget *> widgets;
            const std::unique_ptr<QWidget> window(makeValueWidgets(widgets));
            for (const char *const name : {QT_TR_NOOP("Gain %1"), QT_TR_NOOP("Level %1")}) {
                for (int i = 0; i < widgets.size(); ++i)
                    setName(*widgets.at(i), tr(name).arg(i));
                QVERIFY(show(*window));
                QCOMPARE((faultsOf(*window) + faultsOfPopUps(*window)).join(QLatin1Char('\n')), QString());
            }
        }
    }

    /** A tool reads and writes what the box shows, within what may be typed. */
    void textOfSpinBoxes()
    {
        QtOrvSpinBoxVal64 box;
        box.setPrefix(QStringLiteral("f = "));
        box.setRange(0, 5000);
        box.setValue(125);
        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(&box);
        QAccessibleTextInterface *const text = accessible->textInterface();
        QAccessibleEditableTextInterface *const editable = accessible->editableTextInterface();
        QCOMPARE(text->text(0, text->characterCount()), QStringLiteral("f = 125"));
        text->setSelection(0, 4, 6);
        int start = 0;
        int end = 0;
        text->selection(0, &start, &end);
        QCOMPARE(qMakePair(start, end), qMakePair(4, 6));
        editable->replaceText(4, 6, QStringLiteral("40"));
        editable->insertText(4, QStringLiteral("1"));
        QCOMPARE(box.value(), 1405LL);
        editable->insertText(INT_MIN, QStringLiteral("9"));
        editable->replaceText(INT_MAX, INT_MIN, QStringLiteral("9"));
        box.setReadOnly(true);
        editable->deleteText(4, 5);
        QCOMPARE(box.value(), 1405LL);
        QVERIFY(accessible->state().readOnly && !accessible->state().editable);
    }

    void comboBoxesTellTheirItem()
    {
        OrvGui::OrvGenParamTreeView view;
        QVERIFY(show(view));
        auto *const box = view.findChild<QComboBox *>(QStringLiteral("cbVisibility"));
        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(box);
        QCOMPARE(accessible->text(QAccessible::Value), box->currentText());
        QAccessibleTextInterface *const text = accessible->textInterface();
        QCOMPARE(text->text(0, text->characterCount()), box->currentText());
        for (const bool isOpen : {true, false}) {
            if (isOpen)
                expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
            accessible->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
            QTRY_COMPARE(box->view()->isVisible(), isOpen);
        }
    }

private:
    MarkingTranslator m_translator;
};

ORV_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
