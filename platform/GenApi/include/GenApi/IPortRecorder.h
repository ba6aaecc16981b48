// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IPort.h>

namespace GENAPI_NAMESPACE {

/** Where writes are kept to be done once more; an application's matter. */
struct ORV_GENAPI_EXPORT IPortWriteList
{
    virtual void Write(const void *pBuffer, int64_t Address, int64_t Length) = 0;

    /** Does the writes on \a pPort. */
    virtual void Replay(IPort *pPort) = 0;

    /** A number of the application's own. */
    virtual void SetCookie(const int64_t Value) = 0;
    virtual int64_t GetCookie() = 0;

protected:
    ~IPortWriteList() = default;
};

/** A port on which writes can be done once more. */
struct ORV_GENAPI_EXPORT IPortReplay : virtual public IPort
{
    /** With \a Invalidate the nodes behind the port are told. */
    virtual void Replay(IPortWriteList *pPortRecorder, bool Invalidate = true) = 0;
};

/** A port node, which can keep in a list what is written through it. The writes reach the device as well. */
struct ORV_GENAPI_EXPORT IPortRecorder : public IPortReplay
{
    virtual void StartRecording(IPortWriteList *pPortRecorder) = 0;
    virtual void StopRecording() = 0;
};

template <typename T>
class CPortRecorderRefT : public CPortRefT<T>
{
public:
    void Replay(IPortWriteList *pPortRecorder, bool Invalidate = true) override
    {
        this->referred().Replay(pPortRecorder, Invalidate);
    }
    void StartRecording(IPortWriteList *pPortRecorder) override { this->referred().StartRecording(pPortRecorder); }
    void StopRecording() override { this->referred().StopRecording(); }
};

using CPortRecorderRef = CPortRecorderRefT<IPortRecorder>;

} // namespace GENAPI_NAMESPACE
