// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Draws the widget of a page's example into the PNG file that the first argument names.

#include <QApplication>
#include <QBoxLayout>
#include <QPixmap>
#include <QWidget>

QWidget *example();

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    constexpr int width = 360;
    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    layout->addWidget(example());
    window.resize(width, window.sizeHint().height());
    window.show();
    return argc == 2 && window.grab().save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
