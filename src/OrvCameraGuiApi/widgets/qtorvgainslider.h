// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QScopedPointer>
#include <QString>
#include <QWidget>

class QLabel;
class QtOrvDoubleSlider;
class QtOrvDoubleSpinBoxVal;
class QtOrvGainSliderPrivate;

/**
 * A slider and a spin box side by side for one number with decimals, with an optional caption to the left and above.
 * See QtOrvSliderSpinBox for the common contract of the composites.
 *
 * If decimals() round a bound to a number beyond it, that end of the spin box stands for the bound itself: value() and
 * valueChanged() never leave the range.
 */
class ORV_CAMERAGUIAPI_EXPORT QtOrvGainSlider : public QWidget
{
    Q_OBJECT
    // Forms set the properties in this order: the value last.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool validateTyping READ validateTyping WRITE setValidateTyping)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString leftLabelText READ leftLabelText WRITE setLeftLabelText)
    Q_PROPERTY(QString topLabelText READ topLabelText WRITE setTopLabelText)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    /** Range 0 to 100, step 1, value 0; \a parent owns the widget and may be null. */
    explicit QtOrvGainSlider(QWidget *parent = nullptr);
    ~QtOrvGainSlider() override;

    double value() const;

    double minimum() const;
    double maximum() const;
    /** Acts on the slider; see QtOrvDoubleSlider::setMinimum(). */
    void setMinimum(double minimum);
    void setMaximum(double maximum);

    /** The size of a step; 1 by default. A step that is not finite, or not greater than 0, is ignored. */
    double singleStep() const;
    void setSingleStep(double step);

    /** Digits behind the point, 0 to 323; 3 by default. The labels of the slider use them from the next range on. */
    int decimals() const;
    void setDecimals(int decimals);

    /** Whether values are snapped to minimum() + k * singleStep() by both parts; off by default. */
    bool validate() const;
    void setValidate(bool validate);

    /** Whether typed text may become the value before Return or Enter is pressed; on by default. */
    bool validateTyping() const;
    void setValidateTyping(bool validate);

    /** Text before and after the number in the spin box; empty by default. */
    QString prefix() const;
    void setPrefix(const QString &prefix);
    QString suffix() const;
    void setSuffix(const QString &suffix);

    /** Caption to the left of the parts; hidden while empty, which it is by default. */
    QString leftLabelText() const;
    void setLeftLabelText(const QString &text);
    /** Caption above the parts; hidden while empty, which it is by default. */
    QString topLabelText() const;
    void setTopLabelText(const QString &text);

    /**
     * Whether the value is read-only: the spin box is read-only and the slider disabled, which ends a drag and forgets
     * it. Off by default.
     */
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

    /** The parts, which stay this widget's. A label is null until its text is first set. */
    QLabel *leftLabel() const;
    QLabel *topLabel() const;
    QtOrvDoubleSpinBoxVal *spinBox() const;
    QtOrvDoubleSlider *slider() const;

public Q_SLOTS:
    void setValue(double value);
    /** With \a maximum below \a minimum the minimum is the only value. */
    void setRange(double minimum, double maximum);

Q_SIGNALS:
    void valueChanged(double value);
    /** Comes before the number's signal. \a text is the whole text of the spin box. */
    void valueChanged(const QString &text);
    void rangeChanged(double minimum, double maximum);

private:
    friend class QtOrvGainSliderPrivate;

    const QScopedPointer<QtOrvGainSliderPrivate> d;
};
