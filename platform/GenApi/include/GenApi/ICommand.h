// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** Something a device can be told to do. */
struct ORV_GENAPI_EXPORT ICommand : virtual public IValue
{
    virtual void Execute(bool Verify = true) = 0;

    /** Whether the last execution has ended, as far as the device can tell. */
    virtual bool IsDone(bool Verify = true) = 0;

    void operator()() { Execute(); }
};

template <typename T>
class CCommandRefT : public CValueRefT<T>
{
public:
    void Execute(bool Verify = true) override { this->referred().Execute(Verify); }
    bool IsDone(bool Verify = true) override { return this->referred().IsDone(Verify); }
};

using CCommandRef = CCommandRefT<ICommand>;

} // namespace GENAPI_NAMESPACE
