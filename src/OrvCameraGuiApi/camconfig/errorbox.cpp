// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/errorbox.h>

#include <OrvCameraGuiApi/camconfig/errortexts.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

#include <algorithm>

namespace {

/** A message on the screen. It can be answered although its parent gets disabled, as it does when the camera is lost.
 */
class ErrorBox : public QMessageBox
{
public:
    ErrorBox(const QString &text, QWidget *parent)
        : QMessageBox(QMessageBox::Critical, QString(), text, QMessageBox::Ok, parent)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setTextFormat(Qt::PlainText);
        setDefaultButton(QMessageBox::Ok);
        setModal(true);
    }

    static bool isShown(const QString &text, const QWidget *parent)
    {
        const auto boxes = parent ? parent->findChildren<QMessageBox *>(QString(), Qt::FindDirectChildrenOnly)
                                  : QList<QMessageBox *>();
        return std::any_of(boxes.begin(), boxes.end(),
                           [&](QMessageBox *box) { return box->isVisible() && box->text() == text; });
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QMessageBox::changeEvent(event);
        if (event->type() == QEvent::EnabledChange && !isEnabled())
            setEnabled(true);
    }
};

} // namespace

namespace OrvGui {

void showError(OrvCamErr err, QWidget *parent, const QString &name)
{
    if (err == OrvCamErr_Ok)
        return;
    const QString text = OrvGui::OrvCamConfigMapper::tr("Error while working with '%1' parameter!\r\nDescription: %2")
                             .arg(name, OrvGui::OrvCamConfigMapper::tr(orvCamErrDescription(err)));
    if (ErrorBox::isShown(text, parent))
        return;
    // A pop-up would keep mouse and keys from the box.
    if (QWidget *const popup = QApplication::activePopupWidget())
        popup->close();
    (new ErrorBox(text, parent))->show();
}

} // namespace OrvGui
