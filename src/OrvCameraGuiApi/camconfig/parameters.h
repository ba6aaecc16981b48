// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <QByteArray>
#include <QString>

#include <cstdint>

/** \file Questions to parameters that several places ask. */

namespace OrvGui {

inline QString nameOf(OrvGenParam::Param *param)
{
    return QString::fromUtf8(param->GetName());
}

inline QString nameOf(OrvGenParam::EnumEntry *entry)
{
    return QString::fromUtf8(entry->GetValueStr(nullptr));
}

/** Whether a control of \a param, which may be null, is enabled. */
inline bool isUsable(OrvGenParam::Param *param)
{
    return param && param->IsAvailable() && param->IsWritable();
}

/** The symbolic value, else the number; empty when it cannot be read. */
QString valueInWords(OrvGenParam::Enum *param);

/** \name Whether the camera's value differs from an entered one, or cannot be read. @{ */
bool differs(OrvGenParam::Int *param, std::int64_t value);
bool differs(OrvGenParam::Enum *param, std::int64_t value);
bool differs(OrvGenParam::Enum *param, const QByteArray &symbolic);
/** A check box stands for every value but 0. */
bool differs(OrvGenParam::Enum *param, bool value);
bool differs(OrvGenParam::Boolean *param, bool value);
/** @} */

} // namespace OrvGui
