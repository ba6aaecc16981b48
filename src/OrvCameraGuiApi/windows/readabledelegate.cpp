#include <OrvCameraGuiApi/windows/readabledelegate.h>

#include <OrvCameraGuiApi/windows/plaintooltip.h>

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

/** By the definition of sRGB, from 0 to 1. */
double luminanceOf(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrastOf(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminanceOf(a), luminanceOf(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

/** \a share of 256 parts are the text's. */
QColor blended(const QColor &color, const QColor &text, int share)
{
    const auto part = [share](int from, int to) { return from + (to - from) * share / 256; };
    return QColor(part(color.red(), text.red()), part(color.green(), text.green()), part(color.blue(), text.blue()));
}

QColor backgroundOf(const QStyleOptionViewItem &option, const QPalette &palette)
{
    if (option.backgroundBrush.style() == Qt::SolidPattern)
        return option.backgroundBrush.color();
    const bool isAlternate = option.features & QStyleOptionViewItem::Alternate;
    return palette.color(isAlternate ? QPalette::AlternateBase : QPalette::Base);
}

} // namespace

QColor readableColor(const QColor &color, const QColor &text, const QColor &background)
{
    constexpr double wanted = 4.5;
    constexpr int steps = 32;
    for (int step = 0; step < steps; ++step) {
        QColor candidate = blended(color, text, step * 256 / steps);
        if (contrastOf(candidate, background) >= wanted)
            return candidate;
    }
    return text;
}

bool ReadableDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                                 const QModelIndex &index)
{
    if (!event || !view || event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), plainToolTip(index.data(Qt::ToolTipRole).toString()), view->viewport(),
                       option.rect);
    return true;
}

void ReadableDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QPalette palette = option->widget ? option->widget->palette() : QGuiApplication::palette();
    const QColor &text = palette.color(QPalette::Text);
    const QColor color = option->palette.color(QPalette::Text);
    if (color != text)
        option->palette.setColor(QPalette::Text, readableColor(color, text, backgroundOf(*option, palette)));
}
