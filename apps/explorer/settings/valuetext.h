#pragma once

#include <GenApi/Types.h>

#include <QByteArray>

/**
 * Whether \a has is the value \a wanted of a feature of that kind. Numbers may be written differently, and a float may
 * differ by one in the last digit that was written: the camera keeps more of it, or less, than its text.
 */
bool isSameValue(const QByteArray &wanted, const QByteArray &has, GenApi::EInterfaceType kind);

/** Whether two texts are the same value of a feature of which nothing is known. */
bool isSameValue(const QByteArray &left, const QByteArray &right);
