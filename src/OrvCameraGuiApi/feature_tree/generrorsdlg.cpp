// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/generrorsdlg.h>

#include <OrvCameraGuiApi/windows/fitscreen.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QMenu>
#include <QTextBrowser>
#include <QVBoxLayout>

GenErrorsDlg::GenErrorsDlg(const QString &errors, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("GenErrorsDlg"));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    resize(400, 171);
    openWithinScreen(*this);
    setWindowTitle(tr("Gen<i>Cam errors"));

    auto *const text = new QTextBrowser(this);
    text->setAccessibleName(tr("Errors"));
    // Not rich text: a message of a camera may look like a tag.
    text->setPlainText(errors.isEmpty() ? tr("No Errors") : errors);
    text->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(text, &QWidget::customContextMenuRequested, this, [this, text](const QPoint &pos) {
        QMenu *const menu = text->createStandardContextMenu(pos);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addSeparator();
        connect(menu->addAction(tr("Clear")), &QAction::triggered, this, [this, text] {
            text->setPlainText(tr("No Errors"));
            Q_EMIT cleared();
        });
        menu->popup(text->viewport()->mapToGlobal(pos));
    });
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &GenErrorsDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &GenErrorsDlg::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
}
