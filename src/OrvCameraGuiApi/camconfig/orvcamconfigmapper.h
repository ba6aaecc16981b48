#pragma once

#include <OrvCameraGuiApi/camconfig/iorvcamconfigintconverter.h>
#include <OrvCameraGuiApi/camconfig/reportrelay.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <QCoreApplication>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;
class QTabWidget;
class QTimer;
class QtOrvSliderSpinBox;
class QtOrvSpinBox;

namespace OrvGui {

class ControlBinding;
struct ControlEntry;

/** One widget, or one group of radio buttons, that a feature is bound to. */
struct OrvCamConfigMapData
{
    /** The kinds of bindings. */
    enum Kind : std::int32_t {
        Companion = -1, ///< any parameter; a widget that is only enabled and disabled with it
        ComboBox = 0, ///< Enum, QComboBox
        CheckBox = 1, ///< Enum, QCheckBox: checked when the value is not 0
        RadioButtons = 2, ///< Enum, QButtonGroup
        TabWidget = 3, ///< Enum, QTabWidget
        PushButton = 4, ///< Command, QPushButton
        BooleanButton = 5, ///< Boolean, QAbstractButton
        LineEdit = 6, ///< Int, QLineEdit; only refreshed
        PlainSpinBox = 7, ///< Int, QSpinBox; only refreshed
        SpinBox = 8, ///< Int, QtOrvSpinBox
        Slider = 9, ///< Int, QSlider, with a converter; only refreshed
        SliderSpinBox = 10 ///< Int, QtOrvSliderSpinBox, with a converter
    };

    std::int32_t type = Companion; ///< a Kind; any other number is treated like Companion
    QPointer<QWidget> control; ///< null for radio buttons, and once the widget is gone
    /** RadioButtons: the QButtonGroup. Slider and SliderSpinBox: the IOrvCamConfigIntConverter, or null. */
    void *extra = nullptr;

    bool operator==(const OrvCamConfigMapData &other) const;
};

/**
 * Binds camera parameters to widgets, in both directions: what the user enters is written to the camera at once, and
 * what the camera reports is shown at once.
 *
 * A binding is known by the parameter's name. It lasts until the parameter is unbound, bound to another widget, or the
 * mapper goes. Neither parameters nor widgets nor converters become the mapper's: a parameter has to live as long as
 * it is bound, so whoever lets a device go calls unmapAll() before, and so does whoever destroys the mapper, which does
 * not unregister itself. A widget may go at any time, a button group and a converter only after unmapping.
 *
 * Binding takes all connections off the control's own signals; those of the owner are made after it, and again after
 * each new binding.
 *
 * ## What is written
 *
 * An entry: a text that was changed and committed, a step, a drag that moved, a choice; and what the program sets in a
 * bound control. It is written if it differs from the camera's value, whatever the control shows, or if that value
 * cannot be read. Nothing else is: a refresh, a change of range, Return in an untouched field or the wheel over a
 * control without the focus. What hangs on a control's signals during a refresh may bind and unbind, and destroy the
 * mapper, but what it sets in bound controls is not written.
 *
 * ## What is shown
 *
 * The camera's value. An entry that is dropped without a write makes way for it at once, one that came during a refresh
 * when the event loop runs next. A refused entry stays, with a message and a mark (see ControlWatch), until the
 * camera's next report, Escape, or the focus leaves the control; choosing it again writes it again. A tab widget, whose
 * pages belong to the entries, goes back at once.
 *
 * Values, maxima and steps are limited to the upper clamp where a widget shows them, minima only to what an int can
 * hold; the tool tip gives a value that is beyond. What is entered is moved to a step of the parameter, what the camera
 * reports is shown as it is. A field is empty while its value cannot be read.
 *
 * GUI thread only, except OnParameterUpdate().
 */
class OrvCamConfigMapper : public OrvGenParam::ParamEventSink
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::OrvCamConfigMapper)

public:
    explicit OrvCamConfigMapper(std::int64_t upperClamp = std::numeric_limits<std::int32_t>::max());
    ~OrvCamConfigMapper() override;
    Q_DISABLE_COPY(OrvCamConfigMapper)

    /**
     * \name Binding
     * Each answers 1 when the parameter was bound and 0 when it is null; the control, and its companions, are disabled
     * then. Otherwise they are enabled exactly while the parameter is available and writable. The parameter's former
     * control, if it was another one, is disabled and disconnected. Controls must not be null.
     * @{
     */
    int mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox);
    /** \a companions, of which some may be null, follow the state of the parameter: labels and the like. */
    int mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox, const QVector<QWidget *> &companions);
    /** \a converter may be null. */
    int mapIntParam(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox, IOrvCamConfigIntConverter *converter);

    /** Fills the box with the entries' symbolic names. */
    int mapEnumParam(OrvGenParam::Enum *param, QComboBox *comboBox);
    /** Names the buttons, in their order, after the entries; hides what is left over. 0 also for an empty group. */
    int mapEnumParam(OrvGenParam::Enum *param, QButtonGroup *group);
    /** Names the tabs, in their order, after the entries. Of several surplus tabs every other one is removed. */
    int mapEnumParam(OrvGenParam::Enum *param, QTabWidget *tabWidget);
    int mapEnumParam(OrvGenParam::Enum *param, QCheckBox *checkBox);

    int mapBooleanParam(OrvGenParam::Boolean *param, QAbstractButton *button);

    /**
     * With a \a timer, which may be null, a click disables the button and starts the timer; whoever supplied it
     * enables the button again.
     */
    int mapCommandParam(OrvGenParam::Command *param, QPushButton *button, QTimer *timer);

    /**
     * Adds \a record to those of the parameter, and registers for it. The control is refreshed and enabled from the
     * next notification on; what the user does with it is its owner's business. For kinds that nothing here binds.
     */
    void addRecord(OrvGenParam::Param *param, const OrvCamConfigMapData &record);
    /** @} */

    /** Ends the binding of \a param; its companions stay as they are. With a null \a param disables \a widget. */
    void unmapParam(OrvGenParam::Param *param, QWidget *widget);

    /** Disables the control, or the buttons of the group, and takes all connections off its own signals. */
    void unmapControl(const OrvCamConfigMapData &record);

    /** Ends all bindings, detaches all controls, companions too, and unregisters from all parameters. */
    void unmapAll();

    /** What \a feature is bound to, the main control first; empty when it is not bound. */
    QVector<OrvCamConfigMapData> bindings(const QString &feature) const;

    /**
     * \a rule is called whenever a bound parameter has been shown, last, and may do what it likes: for rules of the
     * owner that decide after the mapper.
     */
    void setAfterShow(const std::function<void(OrvGenParam::Param *param)> &rule) { m_afterShow = rule; }

    /** Whether a refresh is going on: entries into bound controls are not written then. */
    bool isRefreshing() const { return !m_refreshes->isEmpty(); }

    /**
     * Shows the state of \a param in all that a parameter of its name is bound to. Notifications that come on another
     * thread than the one the mapper was made on are acted upon when that thread's event loop runs next, once however
     * many there were, if the parameter is still bound.
     */
    void OnParameterUpdate(OrvGenParam::Param *param) override;

    /** \name Refreshing one control; nothing happens when one of the two is null. @{ */
    void updateComboBox(OrvGenParam::Enum *param, QComboBox *comboBox);
    void updateRadioButtons(OrvGenParam::Enum *param, QButtonGroup *group);
    void updateTabWidget(OrvGenParam::Enum *param, QTabWidget *tabWidget);
    void updateEditBox(OrvGenParam::Int *param, QLineEdit *lineEdit);
    void updateSpinBox(OrvGenParam::Int *param, QtOrvSpinBox *spinBox);
    void updateSpinBox(OrvGenParam::Int *param, QSpinBox *spinBox);
    void updateSlider(OrvGenParam::Int *param, QSlider *slider, IOrvCamConfigIntConverter *converter);
    void updateSliderSpinBox(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                             IOrvCamConfigIntConverter *converter);
    /** @} */

    /**
     * Tells in a modal message box that \a param could not be used; OrvCamErr_Ok tells nothing. Returns at once: the
     * box lives until it is closed or \a parent, which may be null, goes. A message that is on the screen for the same
     * \a parent already is not shown twice.
     */
    static void showErrorMessage(OrvCamErr err, QWidget *parent, OrvGenParam::Param *param);

    /**
     * Assistive tools meet \a button by its text and before that the name of its group, which is the group's dynamic
     * property "accessibleName"; without one by the text alone. The mapper does so whenever it gives a button a text.
     */
    static void nameButton(QAbstractButton *button);

    /** Makes the pop-up slider as long as the field of the box is wide. */
    static void resizeVerticalSlider(QtOrvSpinBox *spinBox);
    static void resizeHorizontalSlider(QtOrvSpinBox *spinBox);

private:
    class RefreshGuard;
    using Binding = std::shared_ptr<ControlBinding>;
    using Bindings = QVector<Binding>;

    Binding prepare(OrvGenParam::Param *param, const OrvCamConfigMapData &record);
    int bind(OrvGenParam::Param *param, const OrvCamConfigMapData &record);
    Binding bindingOf(OrvGenParam::Param *param, const OrvCamConfigMapData &record) const;
    void endEntries(const QObject *control);
    void unmap(Binding binding);
    void watch(OrvGenParam::Param *param, QWidget *control);
    void registerAt(OrvGenParam::Param *param);

    bool isBarred() const;
    void enter(const ControlEntry &entry);
    void dropWhileRefreshing(const ControlEntry &entry);
    void settle();
    void takeBack(OrvGenParam::Param *param, QWidget *control);
    void mark(OrvGenParam::Param *param, QWidget *control);

    bool show(OrvGenParam::Param *param);
    void refresh(OrvGenParam::Param *param, const OrvCamConfigMapData &record);

    QHash<QString, Bindings> m_bindings; ///< by feature name
    const std::int64_t m_upperClamp;
    QHash<QString, OrvGenParam::Param *> m_params; ///< by feature name: where this is registered
    QHash<QString, unsigned> m_timesShown; ///< by feature name
    QHash<QString, QPointer<QWidget>> m_dropped; ///< by feature name: entered during a refresh, to be taken back
    std::function<void(OrvGenParam::Param *)> m_afterShow;
    bool m_isSettling = false; ///< dropped entries are being taken back
    std::shared_ptr<QVector<int>> m_refreshes; ///< those going on, by their event loops; outlive the mapper
    QObject m_context; ///< lives as long as the mapper
    ReportRelay<OrvGenParam::Param *> m_reports;
};

} // namespace OrvGui
