// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/parameters.h>

namespace OrvGui {

QString valueInWords(OrvGenParam::Enum *param)
{
    OrvCamErr err = OrvCamErr_Ok;
    const std::int64_t value = param->GetValue(&err);
    if (err != OrvCamErr_Ok)
        return {};
    const QString symbolic = QString::fromUtf8(param->GetValueStr(nullptr));
    return symbolic.isEmpty() ? QString::number(value) : symbolic;
}

/** \a isEqual compares what reading gives, which may be an error. */
template <typename Param, typename IsEqual>
static bool differsFrom(Param *param, const IsEqual &isEqual)
{
    OrvCamErr err = OrvCamErr_Ok;
    return !param->IsReadable() || !isEqual(&err) || err != OrvCamErr_Ok;
}

bool differs(OrvGenParam::Int *param, std::int64_t value)
{
    return differsFrom(param, [&](OrvCamErr *err) { return param->GetValue(err) == value; });
}

bool differs(OrvGenParam::Enum *param, std::int64_t value)
{
    return differsFrom(param, [&](OrvCamErr *err) { return param->GetValue(err) == value; });
}

bool differs(OrvGenParam::Enum *param, const QByteArray &symbolic)
{
    return differsFrom(param, [&](OrvCamErr *err) { return symbolic == param->GetValueStr(err); });
}

bool differs(OrvGenParam::Enum *param, bool value)
{
    return differsFrom(param, [&](OrvCamErr *err) { return (param->GetValue(err) != 0) == value; });
}

bool differs(OrvGenParam::Boolean *param, bool value)
{
    return differsFrom(param, [&](OrvCamErr *err) { return param->GetValue(err) == value; });
}

} // namespace OrvGui
