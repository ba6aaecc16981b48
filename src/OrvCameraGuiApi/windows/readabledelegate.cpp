// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/windows/readabledelegate.h>

#include <OrvCameraGuiApi/windows/plaintooltip.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

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

/** Styles that paint nothing of a plain cell but its background and its text, in these colors and at that place. */
bool isOfQt(const QStyle &style)
{
    constexpr const char *names[] = {"QFusionStyle", "QWindowsStyle", "QCommonStyle"};
    return std::any_of(std::begin(names), std::end(names),
                       [&style](const char *name) { return !std::strcmp(style.metaObject()->className(), name); });
}

/** Whether \a option has nothing but a text of one line, in the middle. */
bool isPlain(const QStyleOptionViewItem &option)
{
    constexpr auto known = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::Alternate;
    constexpr auto special = QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_Editing;
    return !(option.features & ~known) && !(option.state & special) && (option.displayAlignment & Qt::AlignVCenter)
        && !option.text.contains(QChar::LineSeparator);
}

/** Paints the text of a plain cell; false if it has too little room. */
bool paintText(QPainter &painter, const QStyleOptionViewItem &option, const QStyle &style)
{
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
    const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
    QTextOption textOption(QStyle::visualAlignment(option.direction, option.displayAlignment));
    textOption.setTextDirection(option.direction);
    textOption.setWrapMode(QTextOption::ManualWrap);
    QTextLayout layout(option.text, option.font);
    layout.setTextOption(textOption);
    layout.setCacheEnabled(true); // it is painted at once
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(room.width());
    layout.endLayout();
    const QSize size(room.width(), qCeil(line.height()));
    if (qCeil(line.naturalTextWidth()) > room.width() || size.height() > room.height())
        return false;
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &painter, option.widget);
    const bool isActive = option.state & QStyle::State_Active;
    const QPalette::ColorGroup group = !(option.state & QStyle::State_Enabled) ? QPalette::Disabled
        : isActive                                                             ? QPalette::Active
                                                                               : QPalette::Inactive;
    const QPen pen = painter.pen();
    painter.setPen(option.palette.color(group, QPalette::Text));
    layout.draw(&painter, QStyle::alignedRect(option.direction, option.displayAlignment, size, room).topLeft());
    painter.setPen(pen);
    return true;
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

/** Qt's styles lay a text out three times, which is most of what painting a tree takes. Once does for most cells. */
void ReadableDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle &style = cell.widget ? *cell.widget->style() : *QApplication::style();
    if (!isOfQt(style) || !isPlain(cell) || !paintText(*painter, cell, style))
        style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
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
