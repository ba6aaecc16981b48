// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/controlwatch.h>

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QAbstractSlider>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFocusFrame>
#include <QKeyEvent>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QScrollBar>
#include <QTabBar>

namespace {

/** Drawn over a widget; assistive tools pass over it, as over every QFocusFrame. */
class NotTakenFrame : public QFocusFrame
{
public:
    explicit NotTakenFrame(QWidget *framed)
        : QFocusFrame(framed)
    {
        framed->installEventFilter(this);
        resize(framed->size());
        raise();
        show();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            resize(static_cast<QWidget *>(watched)->size());
        return false;
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        constexpr int darkest = 128;
        constexpr qreal width = 2;
        // A palette has no color for this; both reach a contrast of 4.5:1 to what lies around.
        const bool isDark = palette().color(QPalette::Window).lightness() < darkest;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(isDark ? QColor(255, 120, 120) : QColor(190, 0, 0), width));
        const qreal inset = width / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), width, width);
    }
};

/** The part that gets the frame: the field of a composite, which shows the entry. */
QWidget *framedPart(QWidget *control)
{
    if (auto *const composite = qobject_cast<QtOrvSpinBox *>(control))
        return composite->spinBox();
    if (auto *const composite = qobject_cast<QtOrvSliderSpinBox *>(control))
        return composite->spinBox();
    if (auto *const composite = qobject_cast<QtOrvGainSlider *>(control))
        return composite->spinBox();
    return control;
}

bool takesWheel(const QWidget *part)
{
    const bool isSlider = qobject_cast<const QAbstractSlider *>(part) && !qobject_cast<const QScrollBar *>(part);
    return isSlider || qobject_cast<const QComboBox *>(part) || qobject_cast<const QTabBar *>(part)
        || qobject_cast<const QAbstractSpinBox *>(part);
}

} // namespace

namespace OrvGui {

ControlWatch *ControlWatch::install(QWidget *control)
{
    ControlWatch *const watch = of(control);
    return watch ? watch : new ControlWatch(control);
}

ControlWatch *ControlWatch::of(const QWidget *control)
{
    return control ? control->findChild<ControlWatch *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

ControlWatch::ControlWatch(QWidget *control)
    : QObject(control)
    , m_control(control)
{
    keepWheelFrom(control);
    const auto parts = control->findChildren<QWidget *>();
    for (QWidget *const part : parts) {
        if (!control->inherits("QTabWidget") || qobject_cast<QTabBar *>(part)) // pages have controls of their own
            keepWheelFrom(part);
    }
}

void ControlWatch::keepWheelFrom(QWidget *part)
{
    if (!takesWheel(part))
        return;
    part->installEventFilter(this);
    if (part->focusPolicy() == Qt::WheelFocus)
        part->setFocusPolicy(Qt::StrongFocus);
}

/** A pop-up is a part as well. */
bool ControlWatch::isPart(const QObject *object) const
{
    while (object && object != m_control)
        object = object->parent();
    return object;
}

void ControlWatch::mark(const QString &cameraValue)
{
    describe(cameraValue.isEmpty() ? tr("Not taken. The camera's value cannot be read.")
                                   : tr("Not taken. The camera has %1.").arg(cameraValue));
    if (m_frame)
        return;
    m_frame = new NotTakenFrame(framedPart(m_control));
    m_hasFocus = isPart(QApplication::focusWidget());
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { focusChanged(now); });
    qApp->installEventFilter(this);
    QAccessibleEvent alert(m_control, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ControlWatch::note(const QString &text)
{
    if (!isMarked())
        describe(text);
}

void ControlWatch::clear()
{
    if (m_frame) {
        disconnect(qApp, nullptr, this, nullptr);
        qApp->removeEventFilter(this);
        delete m_frame;
    }
    describe(QString());
}

QString ControlWatch::numberText(std::int64_t number, const QWidget *control)
{
    QLocale locale = control->locale();
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale.toString(qlonglong(number));
}

QString ControlWatch::valueText(const QString &cameraValue)
{
    return tr("The camera's value is %1.").arg(cameraValue);
}

/** Describes the part with the focus too, because assistive tools read that one. */
void ControlWatch::describe(const QString &text)
{
    for (QWidget *const part : {m_control, framedPart(m_control)}) {
        if (text.isEmpty()) {
            if (m_toolTips.contains(part))
                part->setToolTip(m_toolTips.take(part));
            continue;
        }
        if (!m_toolTips.contains(part))
            m_toolTips.insert(part, part->toolTip());
        if (part->toolTip() == text)
            continue;
        part->setToolTip(text);
        QAccessibleEvent described(part, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&described);
    }
}

/** A message about the entry, or another application, does not count as leaving the control. */
void ControlWatch::focusChanged(QWidget *now)
{
    if (!now || qobject_cast<QMessageBox *>(now->window()))
        return;
    const bool had = m_hasFocus;
    m_hasFocus = isPart(now);
    if (had && !m_hasFocus)
        Q_EMIT entryGivenUp();
}

bool ControlWatch::eventFilter(QObject *watched, QEvent *event)
{
    auto *const part = qobject_cast<QWidget *>(watched);
    if (!part || !isPart(part))
        return false;
    switch (event->type()) {
    case QEvent::Wheel:
        if (!takesWheel(part) || part->hasFocus())
            return false;
        event->ignore(); // it goes on to the surroundings
        return true;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        // In a pop-up the key closes the pop-up.
        if (!isMarked() || part->window() != m_control->window()
            || !static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel))
            return false;
        event->accept();
        if (event->type() == QEvent::KeyPress)
            Q_EMIT entryGivenUp();
        return event->type() == QEvent::ShortcutOverride || !isMarked(); // else the key goes on, to close the window
    default:
        return false;
    }
}

} // namespace OrvGui
