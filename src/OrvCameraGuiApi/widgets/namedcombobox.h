#pragma once

#include <QComboBox>

/**
 * A combo box that assistive tools meet by what it is called, the accessible name or that of the label whose buddy it
 * is, on every platform. On X11 a QComboBox calls itself by the item that it shows; that is here its value and text.
 */
class NamedComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit NamedComboBox(QWidget *parent = nullptr);
};
