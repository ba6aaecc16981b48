// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QFormLayout;
class QHBoxLayout;
class QPlainTextEdit;

/** Shows the value-entry widgets in their variants, and lists their signals as they come. */
class WidgetsPage : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetsPage(QWidget *parent = nullptr);

private:
    QWidget *createSpinBoxes();
    QWidget *createSliders();
    QWidget *createComposites();

    void addSpinBoxes(QFormLayout &form);
    void addScales(QHBoxLayout &row);
    void addHorizontalSliders(QFormLayout &form);

    /** Lists every \a signal of \a sender from now on, as \a name and what the signal carries. */
    template <typename Sender, typename Class, typename... Arguments>
    void list(Sender *sender, const QString &name, void (Class::*signal)(Arguments...));
    template <typename Slider>
    void listSlider(Slider *slider);
    template <typename Composite>
    void listComposite(Composite *composite);

    QPlainTextEdit *const m_signals;
};
