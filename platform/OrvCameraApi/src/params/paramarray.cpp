// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "paramarray.h"

#include "paramkinds.h"

#include <utility>

namespace OrvCameraApi {

ParamArray::ParamArray(std::shared_ptr<GenApi::INodeMap> map, std::function<bool()> isConnected)
    : m_map(std::move(map))
    , m_context{*m_map, std::move(isConnected)}
{
}

ParamArray::~ParamArray() = default;

OrvGenParam::Boolean *ParamArray::GetBoolean(const char *name, OrvCamErr *err)
{
    return find<OrvGenParam::Boolean>(name, err);
}

OrvGenParam::Command *ParamArray::GetCommand(const char *name, OrvCamErr *err)
{
    return find<OrvGenParam::Command>(name, err);
}

OrvGenParam::Enum *ParamArray::GetEnum(const char *name, OrvCamErr *err)
{
    return find<OrvGenParam::Enum>(name, err);
}

OrvGenParam::Int *ParamArray::GetInt(const char *name, OrvCamErr *err)
{
    return find<OrvGenParam::Int>(name, err);
}

OrvGenParam::String *ParamArray::GetString(const char *name, OrvCamErr *err)
{
    return find<OrvGenParam::String>(name, err);
}

OrvCamErr ParamArray::SetIntegerValue(const char *name, std::int64_t value)
{
    OrvCamErr err = OrvCamErr_Ok;
    OrvGenParam::Int *const param = GetInt(name, &err);
    return param ? param->SetValue(value) : err;
}

std::int64_t ParamArray::GetIntegerValue(const char *name, OrvCamErr *err)
{
    OrvGenParam::Int *const param = GetInt(name, err);
    return param ? param->GetValue(err) : 0;
}

template <typename Kind>
Kind *ParamArray::find(const char *name, OrvCamErr *err)
{
    ParamObject *param = nullptr;
    const OrvCamErr outcome = lookUp(name, param);
    Kind *const found = dynamic_cast<Kind *>(param);
    setError(err, outcome == OrvCamErr_Ok && !found ? OrvCamErr_GenICamTypeInvalid : outcome);
    return found;
}

OrvCamErr ParamArray::lookUp(const char *name, ParamObject *&param)
{
    if (!name)
        return OrvCamErr_InvalidArgument;
    const NodeMapLock lock(*m_map);
    const auto known = m_params.find(name);
    if (known != m_params.end()) {
        param = known->second.get();
        return OrvCamErr_Ok;
    }
    bool isFeature = false;
    const OrvCamErr err = errorOf([&] {
        GenApi::INode *const node = m_map->GetNode(name);
        isFeature = node && node->IsFeature();
        if (isFeature)
            param = (m_params[name] = makeParam(node, m_context)).get();
    });
    return err == OrvCamErr_Ok && !isFeature ? OrvCamErr_GenICamUnknownParam : err;
}

} // namespace OrvCameraApi
