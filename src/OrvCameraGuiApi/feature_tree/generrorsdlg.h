// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDialog>

/** A modal dialog that shows what failed, as it was when the dialog was opened. Deletes itself when it is closed. */
class GenErrorsDlg : public QDialog
{
    Q_OBJECT

public:
    /** \a errors is plain text; when it is empty the dialog says that there are none. */
    GenErrorsDlg(const QString &errors, QWidget *parent);

Q_SIGNALS:
    /** The user wants the errors to be forgotten; the dialog shows none from now on. */
    void cleared();
};
