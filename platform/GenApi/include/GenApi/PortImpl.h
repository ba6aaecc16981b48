// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IPortConstruct.h>
#include <GenApi/IPortRecorder.h>
#include <GenApi/Pointer.h>

namespace GENAPI_NAMESPACE {

/** Base of an application's own port; Read(), Write() and GetAccessMode() are its matter. */
class CPortImpl : public IPortConstruct, public IPortReplay
{
public:
    CPortImpl() = default;

    /** Called by the node map that the port is connected to. */
    void SetPortImpl(IPort *pPort) override { m_node = pPort; }
    EYesNo GetSwapEndianess() override { return No; }

    void Replay(IPortWriteList *pPortRecorder, bool Invalidate = true) override
    {
        if (pPortRecorder)
            pPortRecorder->Replay(this);
        if (Invalidate)
            InvalidateNode();
    }

    /** Tells the node map that whatever stands behind this port may have changed. */
    void InvalidateNode()
    {
        if (m_node.IsValid())
            m_node->InvalidateNode();
    }

private:
    CNodePtr m_node;
};

} // namespace GENAPI_NAMESPACE
