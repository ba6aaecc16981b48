// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QMetaType>
#include <QVariant>
#include <QWidget>

/** The editor of a feature's value, as the feature tree model hands it to the delegate. */
struct ControlData
{
    enum Kind : quint8 {
        ComboBox = 0, ///< QComboBox; the values are the items' user data
        PushButton = 1, ///< QPushButton
        SpinBox64 = 2, ///< QtOrvSpinBoxVal64
        DoubleSpinBox = 3, ///< QDoubleSpinBox
        LineEdit = 4 ///< QLineEdit
    };

    /** Made for this object and without parent: the caller who asked for it owns it. */
    QWidget *editor = nullptr;
    Kind kind = ComboBox;
};

/** The value of a number that can only be chosen from a list; its editor is a combo box and not a spin box. */
struct VariantData
{
    QVariant value;
};

Q_DECLARE_METATYPE(ControlData)
Q_DECLARE_METATYPE(VariantData)

/** The value inside a VariantData; any other \a value itself. */
inline QVariant withoutWrapper(const QVariant &value)
{
    return value.userType() == qMetaTypeId<VariantData>() ? value.value<VariantData>().value : value;
}
