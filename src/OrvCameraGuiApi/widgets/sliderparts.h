// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QLabel>
#include <QLocale>
#include <QSlider>

class QFrame;

/**
 * The slider inside the sliders with labels. It knows how it was moved. Its page step follows its range until a program
 * sets another one.
 */
class KeyAwareSlider : public QSlider
{
    Q_OBJECT

public:
    /**
     * The direction in which a key, or a click beside the handle, moves the value; None for the wheel and for a drag.
     */
    enum class Way { None, Down, Up, ToMinimum, ToMaximum };

    KeyAwareSlider(Qt::Orientation orientation, QWidget *parent);

    /** The way of one of QAbstractSlider's actions, which allow for layout direction and inversion. */
    static Way wayOf(int action);
    /** The number of positions that \a action, which has a way, moves by. */
    int positionsOf(int action) const;

    void setPositions(int first, int last, int step);

    /** Whether the mouse has moved the handle since the last press. */
    bool isDragged() const { return m_dragged; }

    /** Whether the present signals report another range or scale, not a choice of a person or a program. */
    bool isRescaled() const { return m_rescaled; }
    void setRescaled(bool rescaled) { m_rescaled = rescaled; }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    int along(const QPoint &place) const { return orientation() == Qt::Horizontal ? place.x() : place.y(); }

    int m_ownPageStep; ///< as set by the range
    int m_pressedAt = 0; ///< pixels along the slider
    bool m_dragged = false;
    bool m_rescaled = false;
};

/** Marks a slider as being rescaled as long as this object lives. */
class Rescaling
{
public:
    explicit Rescaling(KeyAwareSlider *slider)
        : m_slider(slider)
    {
        m_slider->setRescaled(true);
    }
    ~Rescaling() { m_slider->setRescaled(false); }
    Q_DISABLE_COPY_MOVE(Rescaling)

private:
    KeyAwareSlider *const m_slider;
};

/**
 * The common part of the sliders with labels: the inner widgets, which the frame owns, their layout and their events.
 */
class SliderParts
{
public:
    SliderParts(Qt::Orientation orientation, QFrame *frame);

    void setOrientation(Qt::Orientation orientation);
    void setBounds(const QString &minimum, const QString &maximum);

    /** Whether \a event gives the slider another locale, in which the frame has to write the bounds again. */
    bool changesLocale(const QObject *watched, const QEvent *event) const;
    QLocale locale() const; ///< without group separators

    /**
     * To be called for every event that the frame filters. Returns whether the slider loses the focus. The slider must
     * not see that event; the frame has been sent one, for a delegate that watches the frame.
     */
    bool takesFocusOut(const QObject *watched, QEvent *event);

    QFrame *const frame;
    QLabel *const maxLabel;
    QLabel *const minLabel;
    KeyAwareSlider *const slider;

private:
    void arrange();
};
