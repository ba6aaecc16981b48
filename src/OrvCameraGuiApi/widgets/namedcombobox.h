// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QComboBox>

/**
 * A combo box with the same accessible name on every platform: its own, or that of the label whose buddy it is. On X11
 * a QComboBox gives the current item as its name; here the item is the value and the text.
 */
class NamedComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit NamedComboBox(QWidget *parent = nullptr);
};
