#pragma once

#include <QAbstractSpinBox>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <functional>

/** A setting of a widget that is no property of its class, intentionally, and that forms have all the same. */
struct Switch
{
    QString name; ///< for which uic calls the setter
    std::function<bool(const QWidget *)> isOn;
    std::function<void(QWidget *, bool)> set;
};

/** What a form can do to a widget beyond its properties; of which class is known where it is made. */
struct WidgetEdits
{
    QVector<Switch> switches;
    /** Sets both bounds, whatever they are now, as a form does to a new widget. */
    std::function<void(QWidget *, const QVariant &minimum, const QVariant &maximum)> setRange;
};

/** The edits of the library's class that \a widget is; null for any other. */
const WidgetEdits *editsOf(const QWidget *widget);

/**
 * Has the dynamic properties of \a widget that are named like its switches turn these: so QUiLoader sets what it finds
 * in a form.
 */
void followDynamicProperties(QWidget *widget);
