#pragma once

#include <QLabel>
#include <QSlider>

class QFrame;

/** A slider that can tell whether it is a key for a step or a page that moves it. */
class KeyAwareSlider : public QSlider
{
    Q_OBJECT

public:
    KeyAwareSlider(Qt::Orientation orientation, QWidget *parent);

    bool isSteppedByKey() const { return m_steppedByKey; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool m_steppedByKey = false;
};

/** What the sliders with labels have in common: their parts, owned by the frame, and how these lie and behave. */
class SliderParts
{
public:
    SliderParts(Qt::Orientation orientation, QFrame *frame);

    void setOrientation(Qt::Orientation orientation);
    void setBounds(const QString &minimum, const QString &maximum);

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
