// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>

class QToolButton;
class QtOrvSlider;

/** Makes a slider the pop-up of a tool button: opens it beside the button, and closes it when it loses the focus. */
class SliderPopUp : public QObject
{
public:
    /** \a slider and \a button are children of the same widget, and outlive this object. */
    SliderPopUp(QtOrvSlider *slider, QToolButton *button);

    /** Gives button and slider the text and the size for the slider's orientation. */
    void fitOrientation();
    /** Opens the slider beside the button, and moves it onto the screen right afterwards. */
    void open();

private:
    bool isVertical() const;
    QPoint firstPlace() const;
    void moveOntoScreen();
    QRect oppositePlace(const QRect &opener) const;

    QtOrvSlider *const m_slider;
    QToolButton *const m_button;
};
