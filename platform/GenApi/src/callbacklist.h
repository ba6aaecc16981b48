// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/NodeCallback.h>

#include <cstddef>

namespace GENAPI_NAMESPACE {

/**
 * The callbacks of one node, in the order of their registration: a list chained through the callbacks themselves, so
 * that a node without one costs a pointer and a node with one no allocation.
 */
class CallbackList
{
public:
    CallbackList() = default;
    ~CallbackList();
    CallbackList(const CallbackList &) = delete;
    CallbackList &operator=(const CallbackList &) = delete;

    bool isEmpty() const { return !m_first; }
    std::size_t size() const;
    bool contains(const CNodeCallback *callback) const;

    void append(CNodeCallback *callback);

    /** Takes \a callback out without destroying it; false when it is not in the list. */
    bool remove(CNodeCallback *callback);

    template <typename Visitor>
    void forEach(const Visitor &visit) const
    {
        for (CNodeCallback *callback = m_first; callback; callback = callback->m_next)
            visit(callback);
    }

private:
    CNodeCallback *m_first = nullptr;
};

} // namespace GENAPI_NAMESPACE
