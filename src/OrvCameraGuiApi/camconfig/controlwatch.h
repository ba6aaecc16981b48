#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <cstdint>

namespace OrvGui {

/**
 * Watches a control that shows a value of the camera. It keeps from the control what is nobody's entry: the wheel over
 * a part without the focus, which scrolls what lies around instead. And it tells beside the control what the control
 * itself cannot show:
 *
 * - A marked control shows an entry that the camera did not take. A frame says so, and a tool tip that is also spoken
 *   gives the camera's value. Escape and leaving the control ask the owner to take the entry back.
 * - A noted control shows the camera's value as well as it can; the tool tip gives the value itself.
 *
 * One is made for each control, as its child, by install().
 */
class ControlWatch : public QObject
{
    Q_OBJECT

public:
    /** The watch of \a control, which is made if there is none. */
    static ControlWatch *install(QWidget *control);
    /** Null when there is none. */
    static ControlWatch *of(const QWidget *control);

    /** Whether the control shows an entry that the camera did not take. */
    bool isMarked() const { return m_frame; }
    /** \a cameraValue in words; empty when it cannot be read. */
    void mark(const QString &cameraValue);
    /** Shows \a text as the control's tool tip; an empty one gives the control its own tool tip back. */
    void note(const QString &text);
    /** The control shows the camera's value, no more and no less. */
    void clear();

    /** \a number as the field of \a control writes it. */
    static QString numberText(std::int64_t number, const QWidget *control);

    /** What note() is given for a value that the control cannot show. */
    static QString valueText(const QString &cameraValue);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** A marked control was left, or Escape was pressed in it: it is to show the camera's value. */
    void entryGivenUp();

private:
    explicit ControlWatch(QWidget *control);

    void keepWheelFrom(QWidget *part);
    bool isPart(const QObject *object) const;
    void focusChanged(QWidget *now);
    void tell(const QString &text);

    QWidget *const m_control;
    QPointer<QWidget> m_frame; ///< while marked
    bool m_hasFocus = false; ///< since it was marked
    QHash<QWidget *, QString> m_toolTips; ///< the own ones of the parts that bear a text of ours
};

} // namespace OrvGui
