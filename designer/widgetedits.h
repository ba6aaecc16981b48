// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAbstractSpinBox>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <functional>

/** A setting of a widget that is, intentionally, no property of its class, but that a form can have. */
struct Switch
{
    QString name; ///< for which uic calls the setter
    std::function<bool(const QWidget *)> isOn;
    std::function<void(QWidget *, bool)> set;
};

/** The settings of a widget that a form has beyond its properties. */
struct WidgetEdits
{
    QVector<Switch> switches;
    /** Sets both bounds, whatever they are now, as a form does with a new widget. */
    std::function<void(QWidget *, const QVariant &minimum, const QVariant &maximum)> setRange;
};

/** The edits of the class of \a widget; null for a class that is not in the plug-in. */
const WidgetEdits *editsOf(const QWidget *widget);

/**
 * Makes dynamic properties of \a widget turn the switches of the same name. QUiLoader sets unknown properties of a form
 * as dynamic ones.
 */
void followDynamicProperties(QWidget *widget);
