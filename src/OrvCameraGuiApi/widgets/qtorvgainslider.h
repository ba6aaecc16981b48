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
 *
 * Both parts show one number: the spin box as it is, the slider at the nearest of its positions. Whoever moves the
 * slider sets the number to what that position stands for; setValue() and typing set it to any in the range, with
 * validate() to the nearest on the grid (a typed one is shown there when typing ends).
 * A new range moves a number only if it lies outside.
 *
 * Where decimals() show a bound rounded to a number beyond it, that end of the spin box stands for the bound itself:
 * value() and valueChanged() never leave the range.
 *
 * While the slider is dragged the spin box follows it, but valueChanged() waits for the release and is emitted once
 * then, also where nothing has changed: a handle that is let go where it was pressed leaves the number as it is. A drag
 * that ends because the slider is disabled is forgotten. Keys, wheel and clicks beside the handle are announced at
 * once.
 *
 * "&" before a letter of a caption makes a mnemonic that leads to the spin box. For assistive tools the accessible
 * name, else a caption, else the label whose buddy this widget is, names the spin box and, as its "... slider", the
 * slider. Tab goes from the spin box to the slider.
 *
 * GUI thread only. A slot on a signal may change this widget but not delete it (QObject::deleteLater() does).
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

    /** What a step adds; 1 by default. A step that is not greater than 0 or not finite is ignored. */
    double singleStep() const;
    void setSingleStep(double step);

    /** Digits behind the point, 0 to 323; 3 by default. The slider's labels take them up with the next range. */
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

    /** Caption before the parts; empty, and then not shown, by default. */
    QString leftLabelText() const;
    void setLeftLabelText(const QString &text);
    /** Caption above the parts; empty, and then not shown, by default. */
    QString topLabelText() const;
    void setTopLabelText(const QString &text);

    /**
     * Whether the value is but shown: the spin box is read-only then, and the slider disabled. What a drag that this
     * ends has come to is forgotten.
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
    /** Comes with, and before, the number's signal; \a text is all that the spin box shows, with prefix and suffix. */
    void valueChanged(const QString &text);
    void rangeChanged(double minimum, double maximum);

private:
    friend class QtOrvGainSliderPrivate;

    const QScopedPointer<QtOrvGainSliderPrivate> d;
};
