// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <cstdint>

namespace OrvGui {

/**
 * Watches a control that shows a value of the camera. The wheel over a part without the focus does not reach the
 * control; it scrolls the surroundings instead. The watch shows beside the control what the control itself cannot:
 *
 * - A marked control shows an entry that the camera did not take. It gets a frame, and its tool tip, which is also
 *   spoken, gives the camera's value. Escape and leaving the control ask the owner to take the entry back.
 * - A noted control shows the nearest value that it can; the tool tip gives the camera's value.
 *
 * install() makes one watch for each control, as its child.
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
    /** Takes mark and note away: the control shows the camera's value. */
    void clear();

    /** \a number as the field of \a control writes it. */
    static QString numberText(std::int64_t number, const QWidget *control);

    /** The text of a note about a value that the control cannot show. */
    static QString valueText(const QString &cameraValue);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** The user left a marked control, or pressed Escape in it: it should show the camera's value. */
    void entryGivenUp();

private:
    explicit ControlWatch(QWidget *control);

    void keepWheelFrom(QWidget *part);
    bool isPart(const QObject *object) const;
    void focusChanged(QWidget *now);
    void describe(const QString &text);

    QWidget *const m_control;
    QPointer<QWidget> m_frame; ///< while marked
    bool m_hasFocus = false; ///< since it was marked
    QHash<QWidget *, QString> m_toolTips; ///< the parts' own tool tips, while they show a description
};

} // namespace OrvGui
