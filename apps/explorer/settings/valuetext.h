// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Types.h>

#include <QByteArray>

#include <optional>

/** Whether two texts are the same value of a feature of that kind: numbers may be written differently. */
bool isSameValue(const QByteArray &left, const QByteArray &right, GenApi::EInterfaceType kind);

/** The same of a feature of which nothing is known: only what cannot be a text is taken for a number. */
bool isSameValue(const QByteArray &left, const QByteArray &right);

/** The one text of all that are the same value of a feature of that kind; floats stay as they are. */
QByteArray normalValue(const QByteArray &text, GenApi::EInterfaceType kind);

/** The number that a text is, if any. */
std::optional<double> numberOf(const QByteArray &text);

/** The worth of one in the last digit that a feature shows of \a value, which may have dropped zeros there. */
double lastDigitOf(double value, GenApi::EDisplayNotation notation, qint64 precision);
