// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <QScopedPointer>
#include <QString>
#include <QWidget>

class QLabel;
class QtOrvSpinBoxVal;
class QtOrvSliderSpinBoxPrivate;

/**
 * A slider and a spin box side by side for one integer, with an optional caption to the left and above.
 *
 * ## The common contract of the composites
 *
 * QtOrvSliderSpinBox, QtOrvGainSlider and QtOrvSpinBox show one number twice: the spin box shows the number itself, the
 * slider its nearest position. Moving the slider sets the number to the value at that position. setValue() and typing
 * set any number in the range, with validate() the nearest one on the grid; the spin box shows a typed number there
 * when the typing ends. A new range moves only a number outside it, a new scale moves none.
 *
 * During a drag the spin box follows the slider and valueChanged() waits. It is emitted once on release, also for an
 * unchanged number: a handle that is released where it was pressed leaves the number as it is. A drag that ends because
 * the slider is disabled is forgotten. Keys, the wheel and clicks beside the handle are announced at once.
 *
 * "&" before a letter of a caption makes a mnemonic that leads to the spin box. The spin box has the accessible name of
 * the composite, else a caption, else the label whose buddy the composite is, as its name for assistive tools; the
 * slider and the button that opens it are its "... slider". Tab goes from the spin box to the slider or to its button.
 *
 * GUI thread only. A slot may change the composite but not delete it (QObject::deleteLater() does).
 */
class ORV_CAMERAGUIAPI_EXPORT QtOrvSliderSpinBox : public QWidget
{
    Q_OBJECT
    // Forms set the properties in this order: the value last.
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(QtOrvSlider::ScaleType scaleType READ scaleType WRITE setScaleType)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool validateTyping READ validateTyping WRITE setValidateTyping)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString leftLabelText READ leftLabelText WRITE setLeftLabelText)
    Q_PROPERTY(QString topLabelText READ topLabelText WRITE setTopLabelText)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    /** Range 0 to 100, step 1, value 0; \a parent owns the widget and may be null. */
    explicit QtOrvSliderSpinBox(QWidget *parent = nullptr);
    ~QtOrvSliderSpinBox() override;

    int value() const;

    int minimum() const;
    int maximum() const;
    /** Acts on the slider; see QtOrvSlider::setMinimum(). */
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    /** The size of a step; 1 by default. A step of 0 or less is ignored. */
    int singleStep() const;
    void setSingleStep(int step);

    /** Whether values are snapped to minimum() + k * singleStep() by both parts; off by default. */
    bool validate() const;
    void setValidate(bool validate);

    /** Whether typed text may become the value before Return or Enter is pressed; on by default. */
    bool validateTyping() const;
    void setValidateTyping(bool validate);

    /** The slider's scale, see QtOrvSlider::setScaleType(); Linear by default. The number stays as it is. */
    QtOrvSlider::ScaleType scaleType() const;
    void setScaleType(QtOrvSlider::ScaleType type);

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
    QtOrvSpinBoxVal *spinBox() const;
    QtOrvSlider *slider() const;

public Q_SLOTS:
    void setValue(int value);
    /** With \a maximum below \a minimum the minimum is the only value. */
    void setRange(int minimum, int maximum);

Q_SIGNALS:
    void valueChanged(int value);
    /** Comes before the number's signal. \a text is the whole text of the spin box. */
    void valueChanged(const QString &text);
    void rangeChanged(int minimum, int maximum);

private:
    friend class QtOrvSliderSpinBoxPrivate;

    const QScopedPointer<QtOrvSliderSpinBoxPrivate> d;
};
