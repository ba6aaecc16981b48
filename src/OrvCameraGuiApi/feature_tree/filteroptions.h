// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QCheckBox;

/** The options of the name filter: a pop-up that is opened below the filter's line edit. */
class FilterOptions : public QWidget
{
    Q_OBJECT

public:
    explicit FilterOptions(QWidget *parent);

    bool isCaseSensitive() const;
    bool wholeWordsOnly() const;

    /** The path of the picture that tells which options are on. */
    QString iconPath() const;

    /** Opens with its right edge at that of \a anchor, below it if the screen has room there, above it if not. */
    void popUp(const QWidget &anchor);

Q_SIGNALS:
    void caseSensitivityChanged(bool isSensitive);
    void wholeWordsChanged(bool wholeWords);

private:
    QCheckBox *const m_case;
    QCheckBox *const m_whole;
};
