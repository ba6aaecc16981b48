// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QChar>
#include <QPixmap>
#include <QString>

class QWidget;

namespace OrvGui {

/** Stands for micro before a unit: intentionally the Greek letter. */
constexpr QChar microSign(0x03BC);

/**
 * The picture of that resource as \a widget shows it sharply: on a screen with more than one pixel to the point from
 * the file whose name ends in "@2x", if there is one.
 */
QPixmap sharpPixmap(const QString &path, const QWidget *widget);

} // namespace OrvGui
