// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>

#include <QObject>
#include <QScopedPointer>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>

namespace OrvGui {

/** A value that the user entered into a control. */
struct ControlEntry
{
    OrvGenParam::Param *param;
    QWidget *control; ///< the one that was used; of a group, the button
    std::function<bool()> isNews; ///< whether the camera's value differs, or cannot be read
    std::function<OrvCamErr()> write;
};

/**
 * Connects one control, or one group of radio buttons, with a parameter: fills it once, refreshes it, hears what the
 * user enters, and detaches it. Each kind of record has a class of its own. A kind that nothing is known of is only
 * enabled and disabled.
 *
 * A binding knows no other binding, and it neither writes to the camera nor decides what is an entry: the mapper does.
 * The control may go at any time.
 */
class ControlBinding
{
public:
    using Enter = std::function<void(const ControlEntry &entry)>;

    static std::shared_ptr<ControlBinding> make(const OrvCamConfigMapData &record);

    explicit ControlBinding(const OrvCamConfigMapData &record);
    virtual ~ControlBinding();
    Q_DISABLE_COPY(ControlBinding)

    const OrvCamConfigMapData &record() const { return m_record; }

    /** Emits the signals of the control; null when the control has gone. */
    virtual QObject *control() const;
    /** The widgets that bear marks. */
    virtual QWidgetList marked() const;

    /** Prepares the control for the parameter: its items, names and limits of entry. */
    virtual void fill(OrvGenParam::Param *) { }
    /** Shows the value. Nothing happens when the parameter or the control is of another kind. */
    virtual void refresh(OrvGenParam::Param *, std::int64_t /*upperClamp*/) { }
    /** Calls \a enter for each entry until endEntries() or the end of the binding. */
    virtual void connectEntries(OrvGenParam::Param *, const Enter & /*enter*/) { }
    virtual void setEnabled(OrvGenParam::Param *param, bool isEnabled);

    /** The value as a control shows it; empty when it cannot be read. */
    QString cameraText(OrvGenParam::Param *param, const QWidget *control) const;

    /** The context for the connections of entries; another one ends the former connections. */
    QObject *newContext();
    void endEntries() { m_context.reset(); }
    void clearMarks() const;
    /** Disables the control and takes all connections off its own signals. */
    void detach();
    void disconnectOwnSignals() const;

protected:
    /** The number that the control shows for the camera's \a value. */
    virtual std::int64_t toControl(std::int64_t value, OrvGenParam::Int *) const { return value; }

private:
    const OrvCamConfigMapData m_record;
    QScopedPointer<QObject> m_context;
};

/** Sets or takes the tool tip for a value of the camera that \a control cannot show; empty: it can. */
void noteValue(const QWidget *control, const QString &value);

/** The binding of a record for an integer; null for any other kind. */
std::shared_ptr<ControlBinding> makeIntBinding(const OrvCamConfigMapData &record);

} // namespace OrvGui
