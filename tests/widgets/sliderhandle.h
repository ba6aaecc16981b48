#pragma once

#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

/** Where the mouse takes hold of a slider. */
inline QPoint handle(const QSlider &slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    option.upsideDown = slider.orientation() == Qt::Vertical;
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider).center();
}
