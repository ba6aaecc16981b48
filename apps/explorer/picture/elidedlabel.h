// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

/** A line of plain text that is shortened where there is no room for it; its tool tip then has all of it. */
class ElidedLabel : public QWidget
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &name, QWidget *parent = nullptr);

    /** Line breaks become spaces. */
    void setText(const QString &text);
    const QString &text() const { return m_text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
};
