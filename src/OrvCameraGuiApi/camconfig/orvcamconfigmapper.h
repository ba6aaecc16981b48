// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/background/reportrelay.h>
#include <OrvCameraGuiApi/camconfig/iorvcamconfigintconverter.h>
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
 * Binds camera parameters to widgets, in both directions: an entry of the user is written to the camera at once, and a
 * report of the camera is shown at once.
 *
 * A binding is known by the name of the parameter. It lasts until the parameter is unbound or bound to another widget,
 * or until the mapper is destroyed. The mapper owns neither parameters nor widgets nor converters. A parameter has to
 * live as long as it is bound: call unmapAll() before the device is let go, and before the mapper is destroyed, because
 * the mapper does not unregister itself. A widget may be destroyed at any time, a button group and a converter only
 * after unmapping.
 *
 * Binding takes all connections off the control's own signals. The owner makes its connections after each binding.
 *
 * ## Writing
 *
 * An entry is a text that was changed and committed, a step, a drag that moved or a choice; a value that the program
 * sets in a bound control is an entry too. It is written if it differs from the camera's value, or if that value cannot
 * be read; the value that the control shows does not matter. Nothing else is written: no refresh, no change of range,
 * no Return in an untouched field, no turn of the wheel over a control without the focus. A slot of a control's signals
 * may bind, unbind and destroy the mapper during a refresh; values that it sets in bound controls are not written.
 *
 * ## Showing
 *
 * Controls show the camera's value. An entry that is dropped without a write is replaced by it at once; one that came
 * during a refresh, when the event loop runs next. A refused entry stays, with a message and a mark (see ControlWatch),
 * until the camera's next report, Escape, or the loss of the focus; entering it again writes it again. A tab widget
 * goes back at once, because its pages belong to the entries.
 *
 * Values, maxima and steps are limited to the upper clamp, minima only to an int; the tool tip gives a value that is
 * beyond. An entry is moved to a step of the parameter, a report is shown as it is. A field is empty while its value
 * cannot be read.
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
     * Returns 1 when the parameter was bound. Returns 0 when it is null, and disables the control and its companions.
     * Bound controls are enabled exactly while the parameter is available and writable. The parameter's former control,
     * if it was another one, is disabled and disconnected. Controls must not be null.
     * @{
     */
    int mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox);
    /** \a companions, labels and the like, are enabled and disabled with the control; some may be null. */
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
     * With a \a timer, which may be null, a click disables the button and starts the timer. The supplier of the timer
     * enables the button again.
     */
    int mapCommandParam(OrvGenParam::Command *param, QPushButton *button, QTimer *timer);

    /**
     * Adds \a record to those of the parameter, for kinds that nothing here binds. The control is refreshed and enabled
     * with the parameter; its owner handles what the user enters.
     */
    void addRecord(OrvGenParam::Param *param, const OrvCamConfigMapData &record);
    /** @} */

    /** Ends the binding of \a param; its companions stay as they are. With a null \a param disables \a widget. */
    void unmapParam(OrvGenParam::Param *param, QWidget *widget);

    /** Disables the control, or the buttons of the group, and takes all connections off its own signals. */
    void unmapControl(const OrvCamConfigMapData &record);

    /** Ends all bindings, detaches all controls, companions too, and unregisters from all parameters. */
    void unmapAll();

    /** The records of \a feature, the main control first; empty when it is not bound. */
    QVector<OrvCamConfigMapData> bindings(const QString &feature) const;

    /**
     * \a rule is called last whenever a bound parameter has been shown, for rules of the owner that decide after the
     * mapper. It may bind, unbind and destroy the mapper.
     */
    void setAfterShow(const std::function<void(OrvGenParam::Param *param)> &rule) { m_afterShow = rule; }

    /** Whether a refresh is under way: entries into bound controls are not written then. */
    bool isRefreshing() const { return !m_refreshes->isEmpty(); }

    /**
     * Shows the state of \a param in all controls that are bound to its name. On a thread other than the mapper's it
     * only notes the report; the event loop of the mapper's thread then shows the parameter, once for any number of
     * reports, if it is still bound.
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
     * Shows a modal message box: \a param could not be used. OrvCamErr_Ok shows nothing. Returns at once: the box lives
     * until it is closed or \a parent, which may be null, is destroyed. The same message is not shown twice at a time
     * for the same \a parent.
     */
    static void showErrorMessage(OrvCamErr err, QWidget *parent, OrvGenParam::Param *param);

    /**
     * Sets the accessible name of \a button: the name of its group, which is the group's dynamic property
     * "accessibleName", and the button's text. Does nothing without that property. The mapper calls this for every
     * button that it gives a text.
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
    void unmap(const Binding &binding);
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
