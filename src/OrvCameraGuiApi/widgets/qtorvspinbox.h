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
 * A spin box for one integer with a button that opens a slider, and an optional caption to the left and above.
 *
 * The slider is a pop-up without labels. It opens above the button when vertical and beside it, on the side where the
 * line ends, when horizontal, and closes when it loses the focus. A part of it that lies outside the screen is moved
 * onto it right afterwards. Alt+Down and F4 in the spin box open it, too, where the button is shown.
 *
 * Both parts show one number: the spin box as it is, the slider at the nearest of its positions. Whoever moves the
 * slider sets the number to what that position stands for; setValue() and typing set it to any in the range, with
 * validate() to the nearest on the grid.
 * A new range moves a number only if it lies outside, and another scale moves none.
 *
 * While the slider is dragged the spin box follows it, but valueChanged() waits for the release and is emitted once
 * then, also where nothing has changed: a handle that is let go where it was pressed leaves the number as it is. A drag
 * that ends because the slider is disabled is forgotten. Keys, wheel and clicks beside the handle are announced at
 * once.
 *
 * "&" before a letter of a caption makes a mnemonic that leads to the spin box. For assistive tools the accessible
 * name, else a caption, else the label whose buddy this widget is, names the spin box and, as its "... slider", button
 * and slider. Tab goes from the spin box to the button.
 *
 * GUI thread only. A slot on a signal may change this widget but not delete it (QObject::deleteLater() does).
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
    /** \a orientation is the pop-up's. */
    explicit QtOrvSpinBox(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~QtOrvSpinBox() override;

    int value() const;

    int minimum() const;
    int maximum() const;
    /** Acts on the slider; see QtOrvSlider::setMinimum(). */
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    /** What a step adds; 1 by default. A step of 0 or less is ignored. */
    int singleStep() const;
    void setSingleStep(int step);

    /**
     * Whether the slider snaps values to minimum() + k * singleStep(), and the spin box what it commits; off by
     * default.
     */
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

    /** Caption before the parts; empty, and then not shown, by default. */
    QString leftLabelText() const;
    void setLeftLabelText(const QString &text);
    /** Caption above the parts; empty, and then not shown, by default. */
    QString topLabelText() const;
    void setTopLabelText(const QString &text);

    /** Whether the button is shown, if this widget is; it is by default, unless isReadOnly(). */
    bool isSliderButtonVisible() const;
    void setSliderButtonVisible(bool visible);

    /** Gives the pop-up a size, in pixels, which it has until its orientation changes; at least what it needs. */
    void resizeSlider(int width, int height);
    void resizeSlider(const QSize &size);

    /** Of the pop-up, which is sized 20 x 100 when vertical and 100 x 20 when horizontal. */
    Qt::Orientation sliderOrientation() const;
    void setSliderOrientation(Qt::Orientation orientation);

    /**
     * Whether the value is but shown. There is no button to change it then, and the pop-up is closed and disabled. What
     * a drag that this ends has come to is forgotten.
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
     * Follows the number's signal; \a text is all that the spin box shows, with prefix and suffix, but on release of
     * the slider the plain number.
     */
    void valueChanged(const QString &text);
    void rangeChanged(int minimum, int maximum);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    friend class QtOrvSpinBoxPrivate;

    const QScopedPointer<QtOrvSpinBoxPrivate> d;
};
