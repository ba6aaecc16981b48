#pragma once

#include <QLabel>
#include <QLocale>
#include <QSlider>

class QFrame;

/**
 * The slider inside the sliders with labels. It tells how it was moved, and its page step follows its range until
 * somebody sets another.
 */
class KeyAwareSlider : public QSlider
{
    Q_OBJECT

public:
    /** What a key, or a click beside the handle, asks for; None for the wheel and for a drag. */
    enum class Way { None, Down, Up, ToMinimum, ToMaximum };

    KeyAwareSlider(Qt::Orientation orientation, QWidget *parent);

    /** Of one of QAbstractSlider's actions, which know of layout direction and inversion. */
    static Way wayOf(int action);
    /** The positions that \a action, which has a way, moves by. */
    int positionsOf(int action) const;

    void setPositions(int first, int last, int step);

    /** Whether the mouse has moved the handle since it last pressed something. */
    bool isDragged() const { return m_dragged; }

    /** Whether the value that the slider tells of comes from another range or scale, and is nobody's choice. */
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

/** Has the slider say that it is rescaled for as long as this lives. */
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

/** What the sliders with labels have in common: their parts, owned by the frame, and how these lie and behave. */
class SliderParts
{
public:
    SliderParts(Qt::Orientation orientation, QFrame *frame);

    void setOrientation(Qt::Orientation orientation);
    void setBounds(const QString &minimum, const QString &maximum);

    /** Whether the frame has to set the bounds anew, which are written as the locale of the slider has it. */
    bool changesLocale(const QObject *watched, const QEvent *event) const;
    QLocale locale() const; ///< without group separators

    /**
     * To be called for every event that the frame filters. Tells whether that is the slider's loss of focus, which the
     * slider is not to see; the frame has seen it then, for the sake of a delegate that watches the frame.
     */
    bool takesFocusOut(const QObject *watched, QEvent *event);

    QFrame *const frame;
    QLabel *const maxLabel;
    QLabel *const minLabel;
    KeyAwareSlider *const slider;

private:
    void arrange();
};
