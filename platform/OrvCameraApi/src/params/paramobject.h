// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "genapierror.h"
#include "nodemaplock.h"
#include "registrations.h"

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <GenApi/GenApi.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace OrvCameraApi {

/** Shared by the parameters of one array; outlives them. */
struct ParamContext
{
    GenApi::INodeMap &map;
    std::function<bool()> isConnected; ///< whether the device can be reached; called from any thread
};

/**
 * A parameter on top of a node: the part that is the same for all kinds. It keeps no values; the node map does.
 *
 * Sinks are registered, removed and called under the lock of the node map. A removal on one thread therefore waits for
 * a delivery on another.
 */
class ParamObject : public virtual OrvGenParam::Param
{
public:
    ParamObject(GenApi::INode *node, const ParamContext &context, OrvGenParam::ParamType type);
    ~ParamObject() override;
    ParamObject(const ParamObject &) = delete;
    ParamObject &operator=(const ParamObject &) = delete;

    std::int32_t GetType() override { return m_type; }
    const char *GetName() override { return m_name.c_str(); }
    bool IsAvailable() override;
    bool IsWritable() override;
    bool IsReadable() override;
    OrvCamErr RegisterEvent(OrvGenParam::ParamEventSink *sink) override;
    OrvCamErr UnregisterEvent(OrvGenParam::ParamEventSink *sink) override;

protected:
    /** Runs \a action on the node, under the lock; fails at once when the device cannot be reached. */
    template <typename Action>
    OrvCamErr attempt(Action &&action) const
    {
        if (!m_context.isConnected())
            return OrvCamErr_NoDevice;
        const NodeMapLock lock(m_context.map);
        const OrvCamErr err = errorOf(action);
        return err == OrvCamErr_Ok || m_context.isConnected() ? err : OrvCamErr_NoDevice;
    }

    /** The result of \a readValue, or a value-initialised one when it throws. */
    template <typename Read>
    auto read(OrvCamErr *err, Read &&readValue) const
    {
        decltype(readValue()) value{};
        setError(err, attempt([&] { value = readValue(); }));
        return value;
    }

private:
    GenApi::EAccessMode accessMode() const;
    void watchNode();
    void unwatchNode();
    void onNodeChanged(GenApi::INode *node);

    GenApi::INode *const m_node;
    const ParamContext &m_context;
    const OrvGenParam::ParamType m_type;
    const std::string m_name;
    Registrations<OrvGenParam::ParamEventSink *> m_sinks{liveCounts().sinks};
    GenApi::CallbackHandleType m_callback{};
    std::optional<Counted> m_countedCallback;
};

} // namespace OrvCameraApi
