#pragma once

#include "genapierror.h"
#include "sinklist.h"

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <GenApi/GenApi.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace OrvCameraApi {

/** What the parameters of one array share. Outlives them. */
struct ParamContext
{
    GenApi::INodeMap &map;
    std::function<bool()> isConnected; ///< whether the device can be reached; called from any thread
};

/** A parameter on top of a node: what all kinds do alike. Keeps no values; the node map does. */
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
    /** Runs \a action on the node, under the lock, if the device can be reached. */
    template <typename Action>
    OrvCamErr attempt(Action &&action) const
    {
        if (!m_context.isConnected())
            return OrvCamErr_NoDevice;
        const NodeMapLock lock(m_context.map);
        const OrvCamErr err = errorOf(action);
        return err == OrvCamErr_Ok || m_context.isConnected() ? err : OrvCamErr_NoDevice;
    }

    /** The value that \a readValue gives, or that of an empty initialiser when it throws. */
    template <typename Read>
    auto read(OrvCamErr *err, Read &&readValue) const
    {
        decltype(readValue()) value{};
        tell(err, attempt([&] { value = readValue(); }));
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
    SinkList m_sinks;
    GenApi::CallbackHandleType m_callback{};
    std::optional<Counted> m_countedCallback;
};

} // namespace OrvCameraApi
