// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <QScopedPointer>
#include <QString>
#include <QWidget>

class QLabel;
class QToolButton;
class QtOrvSpinBoxVal64;
class QtOrvSpinBoxPrivate;

/**
 * A spin box for one integer with a button that opens a slider, and an optional caption to the left and above. See
 * QtOrvSliderSpinBox for the common contract of the composites.
 *
 * The slider is a pop-up without labels. A vertical one opens above the button, a horizontal one beside it, where the
 * line ends. Right afterwards a pop-up that is partly outside the screen is moved onto it. It closes when it loses the
 * focus. Alt+Down and F4 in the spin box open it, too, while the button is shown.
 */
class ORV_CAMERAGUIAPI_EXPORT QtOrvSpinBox : public QWidget
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
    Q_PROPERTY(bool sliderButtonVisible READ isSliderButtonVisible WRITE setSliderButtonVisible)
    Q_PROPERTY(Qt::Orientation sliderOrientation READ sliderOrientation WRITE setSliderOrientation)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    /** Range 0 to 100, step 1, value 0, a vertical pop-up; \a parent owns the widget and may be null. */
    explicit QtOrvSpinBox(QWidget *parent = nullptr);
    /** \a orientation is that of the pop-up. */
    explicit QtOrvSpinBox(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~QtOrvSpinBox() override;

    int value() const;

    int minimum() const;
    int maximum() const;
    /** Acts on the slider; see QtOrvSlider::setMinimum(). */
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    /** The size of a step; 1 by default. A step of 0 or less is ignored. */
    int singleStep() const;
    void setSingleStep(int step);

    /** Whether the slider snaps to minimum() + k * singleStep(), and the spin box what it commits; off by default. */
    bool validate() const;
    void setValidate(bool validate);

    /** Whether typed text becomes the value while it is typed: the spin box's keyboard tracking; on by default. */
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

    /** Whether the button is shown together with this widget; on by default, and off while isReadOnly(). */
    bool isSliderButtonVisible() const;
    void setSliderButtonVisible(bool visible);

    /** Sets the size of the pop-up in pixels, at least what it needs, until its orientation changes. */
    void resizeSlider(int width, int height);
    void resizeSlider(const QSize &size);

    /** The orientation of the pop-up, which is sized 20 x 100 when vertical and 100 x 20 when horizontal. */
    Qt::Orientation sliderOrientation() const;
    void setSliderOrientation(Qt::Orientation orientation);

    /**
     * Whether the value is read-only; off by default. The button is hidden then, and the pop-up closed and disabled,
     * which ends a drag and forgets it.
     */
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

    /** The parts, which stay this widget's. A label is null until its text is first set. */
    QLabel *leftLabel() const;
    QLabel *topLabel() const;
    QtOrvSpinBoxVal64 *spinBox() const;
    QtOrvSlider *slider() const;
    QToolButton *toolButton() const;

public Q_SLOTS:
    void setValue(int value);
    /** With \a maximum below \a minimum the minimum is the only value. */
    void setRange(int minimum, int maximum);

Q_SIGNALS:
    void valueChanged(int value);
    /**
     * Follows the signal with the number. \a text is the whole text of the spin box; on release of the slider it is
     * the plain number.
     */
    void valueChanged(const QString &text);
    void rangeChanged(int minimum, int maximum);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    friend class QtOrvSpinBoxPrivate;

    const QScopedPointer<QtOrvSpinBoxPrivate> d;
};
