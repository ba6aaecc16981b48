// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// These headers and Qt's macros do not go together.
#include <arv.h>

#include "plainaravis.h"

#include "measure.h"

namespace {

GInetAddress *toAravis(std::uint32_t address)
{
    const guint32 bytes = g_htonl(address);
    return g_inet_address_new_from_bytes(reinterpret_cast<const guint8 *>(&bytes), G_SOCKET_FAMILY_IPV4);
}

} // namespace

PlainAravis::PlainAravis(std::uint32_t address)
{
    GInetAddress *const adapter = toAravis(0x7F000001);
    GInetAddress *const camera = toAravis(address);
    m_device = arv_gv_device_new(adapter, camera, nullptr);
    g_object_unref(camera);
    g_object_unref(adapter);
    require(m_device, "Aravis cannot open the camera");
}

PlainAravis::~PlainAravis()
{
    g_object_unref(m_device);
}

std::string PlainAravis::value(const std::string &feature) const
{
    ArvGcNode *const node = arv_device_get_feature(ARV_DEVICE(m_device), feature.c_str());
    if (!ARV_IS_GC_FEATURE_NODE(node))
        return {};
    GError *error = nullptr;
    const char *const text = arv_gc_feature_node_get_value_as_string(ARV_GC_FEATURE_NODE(node), &error);
    std::string value = text && !error ? text : "";
    g_clear_error(&error);
    return value;
}
