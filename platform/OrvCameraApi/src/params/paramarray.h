// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "paramobject.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace OrvCameraApi {

/** All parameters of a node map. Each is made when it is first asked for. */
class ParamArray final : public OrvGenParam::Array
{
public:
    /** The port behind \a map outlives this object. \a isConnected: see ParamContext. */
    ParamArray(std::shared_ptr<GenApi::INodeMap> map, std::function<bool()> isConnected);
    ~ParamArray() override;

    OrvGenParam::Boolean *GetBoolean(const char *name, OrvCamErr *err) override;
    OrvGenParam::Command *GetCommand(const char *name, OrvCamErr *err) override;
    OrvGenParam::Enum *GetEnum(const char *name, OrvCamErr *err) override;
    OrvGenParam::Int *GetInt(const char *name, OrvCamErr *err) override;
    OrvGenParam::String *GetString(const char *name, OrvCamErr *err) override;
    GenApi::INodeMap *GetNodeMap() override { return m_map.get(); }
    OrvCamErr SetIntegerValue(const char *name, std::int64_t value) override;
    std::int64_t GetIntegerValue(const char *name, OrvCamErr *err) override;

private:
    template <typename Kind>
    Kind *find(const char *name, OrvCamErr *err);
    /** Finds the parameter, or makes it; null also for a feature of no kind. */
    OrvCamErr lookUp(const char *name, ParamObject *&param);

    const std::shared_ptr<GenApi::INodeMap> m_map;
    const ParamContext m_context;
    std::map<std::string, std::unique_ptr<ParamObject>> m_params; ///< null for a feature of no kind
};

} // namespace OrvCameraApi
