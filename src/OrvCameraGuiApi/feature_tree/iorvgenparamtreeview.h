// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <GenApi/INodeMap.h>

namespace OrvGenParam {
class Array;
}

namespace OrvGui {

/** The features that are shown: each level shows those of the levels before as well. */
enum Visibility { Basic = 0, Expert = 1, Guru = 2 };

/**
 * The feature tree view as it is seen through the C functions; this header needs no Qt. The order of the operations is
 * part of the binary interface. All calls come from the GUI thread; none of them throws.
 */
class ORV_CAMERAGUIAPI_EXPORT IOrvGenParamTreeView
{
public:
    virtual ~IOrvGenParamTreeView();

    /** Shows the node map behind \a params, which stays the caller's. Null shows nothing. */
    virtual void setParams(OrvGenParam::Array *params) = 0;

    /**
     * Shows the features of \a nodeMap, which stays the caller's and outlives the view, or is taken from it by
     * clearParams() or another setParams(); null shows nothing. When this returns nothing refers to the former node
     * map any more: no callback is registered on it, and no editor is open. What was typed there is not written.
     */
    virtual void setParams(GenApi::INodeMap *nodeMap) = 0;

    /** Shows nothing; lets go of the node map like setParams(). */
    virtual void clearParams() = 0;

    virtual Visibility visibility() const = 0;

    /** Another value than those of Visibility changes nothing. */
    virtual void setVisibility(Visibility level) = 0;

    /**
     * The expanded categories, the width of the name column, the visibility level and the division between tree and
     * description, as one line of UTF-8; empty without a node map. Belongs to the view and is valid until the next
     * saveState() or loadState().
     */
    virtual const char *saveState() const = 0;

    /** Restores the view from a text of saveState(), passing over parts that make no sense. May be null. */
    virtual void loadState(const char *state) = 0;

    /**
     * The time between two polls of the node map in milliseconds, at most 2147483647; larger times count as that. 0
     * until it is set: each pass of the event loop then polls the node map with no time elapsed, so that nothing is
     * read again while a processor is kept busy.
     */
    virtual void setPollingTime(unsigned long milliseconds) = 0;
    virtual unsigned long getPollingTime() = 0;

    /** Polling is off until it is enabled. */
    virtual void enablePolling(bool on) = 0;
    virtual bool isPollingEnabled() = 0;
};

} // namespace OrvGui
