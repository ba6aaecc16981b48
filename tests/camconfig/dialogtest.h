// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "orvtest.h"
#include "simtest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QMessageBox>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <cstdint>
#include <string>

/** What the tests of the feature dialogs share: a simulated camera under a dialog, and what a user does with it. */
namespace DialogTest {

/** A simulated camera that is open, read and set past the dialog. */
class Camera
{
public:
    explicit Camera(const char *id = SimTest::twoFrame)
        : m_id(id)
        , m_device(SimTest::open(id))
        , m_params(m_device ? m_device->GetCameraParameters(nullptr) : nullptr)
    {
    }

    OrvCam::Device *device() const { return m_device.get(); }
    OrvGenParam::Array *params() const { return m_params; }

    OrvGenParam::Int *integer(const char *feature) const { return m_params->GetInt(feature, nullptr); }
    OrvGenParam::Enum *enumeration(const char *feature) const { return m_params->GetEnum(feature, nullptr); }
    OrvGenParam::Boolean *boolean(const char *feature) const { return m_params->GetBoolean(feature, nullptr); }

    /** The value in text form, of whatever kind the feature is. */
    QString value(const char *feature) const
    {
        if (auto *const number = integer(feature))
            return QString::number(number->GetValue(nullptr));
        if (auto *const choice = enumeration(feature))
            return QString::fromUtf8(choice->GetValueStr(nullptr));
        auto *const truth = boolean(feature);
        return truth ? QVariant(truth->GetValue(nullptr)).toString() : QString();
    }

    /** Sets a feature as another part of the application does; its listeners are told. */
    bool set(const char *feature, const char *value) const
    {
        if (auto *const number = integer(feature))
            return number->SetValue(QByteArray(value).toLongLong()) == OrvCamErr_Ok;
        if (auto *const choice = enumeration(feature))
            return choice->SetValueStr(value) == OrvCamErr_Ok;
        auto *const truth = boolean(feature);
        return truth && truth->SetValue(QByteArray(value) == "true") == OrvCamErr_Ok;
    }

    /** From now on the camera refuses to take a value for this feature; false when it has no such register. */
    bool refuse(const char *feature) const { return OrvSim::setFault(m_id, feature, OrvSim::Fault::FailWrite); }

    /** How often anything was written since the last call. */
    int takeWrites() const
    {
        const auto writes = int(OrvSim::writeCount(m_id));
        OrvSim::resetCounts(m_id);
        return writes;
    }

private:
    const std::string m_id;
    const SimTest::Held<OrvCam::Device> m_device;
    OrvGenParam::Array *const m_params;
};

/** Plugs in a camera that has not one of the features; it is opened with its name. Null when that fails. */
inline const char *plugInBareCamera()
{
    const char *const name = "BARE";
    OrvSim::DeviceSpec spec = OrvSim::cameraFromText(
        "<RegisterDescription ModelName=\"Bare\" VendorName=\"Orv\" StandardNameSpace=\"None\""
        " SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\" MajorVersion=\"1\""
        " MinorVersion=\"0\" SubMinorVersion=\"0\" xmlns=\"http://www.genicam.org/GenApi/Version_1_1\">"
        "<Category Name=\"Root\"/><Port Name=\"Device\"/></RegisterDescription>");
    spec.name = name;
    spec.id = name;
    return OrvSim::addDevice("ORV-XHCI-0", spec) ? name : nullptr;
}

/**
 * Plugs in a two-frame camera that has not the features \a missing, and in whose description the first text of each
 * pair is replaced by the second; it is opened with its name. Null when that fails.
 */
inline const char *plugInChangedCamera(const QVector<const char *> &missing,
                                       const QVector<QPair<QByteArray, QByteArray>> &changes = {})
{
    const char *const name = "CHANGED";
    OrvSim::DeviceSpec spec = OrvSim::twoFrameCamera();
    auto description = QByteArray::fromStdString(spec.description);
    auto powerUp = QByteArray::fromStdString(spec.powerUp);
    for (const QByteArray feature : missing) {
        description.replace('"' + feature + '"', "\"Other" + feature + '"');
        description.replace('>' + feature + '<', ">Other" + feature + '<');
        powerUp.replace("set " + feature + ' ', "# ").replace("clear " + feature + ' ', "# ");
    }
    for (const auto &[text, other] : changes) {
        if (!description.contains(text))
            return nullptr;
        description.replace(text, other);
    }
    spec.name = name;
    spec.id = name;
    spec.description = description.toStdString();
    spec.powerUp = powerUp.toStdString();
    return OrvSim::addDevice("ORV-XHCI-0", spec) ? name : nullptr;
}

/** The widget of that name; null when there is none of that class. */
template <typename Widget>
Widget *part(const QWidget &window, const char *name)
{
    return window.findChild<Widget *>(QLatin1String(name));
}

/** Shows a window and waits until it takes keys. */
inline bool show(QWidget &window)
{
    window.show();
    return QTest::qWaitForWindowActive(&window);
}

/** The control of that name; of a group of radio buttons the first. */
inline QWidget *control(const QWidget &window, const char *name)
{
    auto *const group = window.findChild<QButtonGroup *>(QLatin1String(name));
    return group ? group->buttons().first() : part<QWidget>(window, name);
}

/** Types a number over what \a field shows, without committing it. */
inline void type(QWidget *field, const char *text)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, QLatin1String(text));
}

/** Types and commits a number. */
inline void enter(QWidget *field, const char *text)
{
    type(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

/** Clicks the mark of a check box or radio button, which may be much wider than that and its text. */
inline void clickMark(QWidget *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

/** What a control shows, in the words of the feature. */
inline QString shownBy(const QWidget *control)
{
    if (auto *const box = qobject_cast<const QComboBox *>(control))
        return box->currentText();
    if (auto *const tabs = qobject_cast<const QTabWidget *>(control))
        return tabs->tabText(tabs->currentIndex());
    auto *const button = qobject_cast<const QAbstractButton *>(control);
    if (!button)
        return control->property("value").toString();
    if (!button->group())
        return QVariant(button->isChecked()).toString();
    return button->group()->checkedButton() ? button->group()->checkedButton()->text() : QString();
}

/** Lets the user set a control, a list by its keys, by one to its ends; a hidden one takes keys all the same. */
inline void enterInto(QWidget *control, const char *value)
{
    const QString text = QLatin1String(value);
    auto *const button = qobject_cast<QAbstractButton *>(control);
    if (auto *const box = qobject_cast<QComboBox *>(control)) {
        const int target = box->findText(text);
        if (target == 0 || target == box->count() - 1)
            return QTest::keyClick(box, target == 0 ? Qt::Key_Home : Qt::Key_End);
        for (int i = box->currentIndex(); target >= 0 && i != target; i += target > i ? 1 : -1)
            QTest::keyClick(box, target > i ? Qt::Key_Down : Qt::Key_Up);
    } else if (auto *const tabs = qobject_cast<QTabWidget *>(control)) {
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i) == text)
                QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(i).center());
        }
    } else if (button && button->group()) {
        const auto buttons = button->group()->buttons();
        for (QAbstractButton *const other : buttons) {
            if (other->text() == text)
                clickMark(other);
        }
    } else if (button) {
        QTest::keyClick(button, Qt::Key_Space);
    } else {
        enter(part<QWidget>(*control, "spinbox"), value);
    }
}

/** The message on the screen, or null. */
inline QMessageBox *shownMessage()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

/** The text of the message on the screen, which is then answered with its button; empty when none comes. */
inline QString takeMessage()
{
    if (!QTest::qWaitFor([] { return shownMessage() != nullptr; }, 1000))
        return {};
    const QPointer<QMessageBox> box = shownMessage();
    const QString text = box->text();
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    return QTest::qWaitFor([&] { return !box; }) ? text : QStringLiteral("cannot be answered");
}

/** What a message tells about a feature that the camera refused. */
inline QString refusal(const char *feature, const char *description)
{
    const char *const mapper = "OrvGui::OrvCamConfigMapper";
    return OrvTest::translated(mapper, "Error while working with '%1' parameter!\r\nDescription: %2")
        .arg(QString::fromUtf8(feature), OrvTest::translated(mapper, description));
}

} // namespace DialogTest
