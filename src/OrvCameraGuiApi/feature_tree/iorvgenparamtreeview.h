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
     * What is expanded, the width of the name column, the visibility level and the division between tree and
     * description, as one line of UTF-8; empty without a node map. Belongs to the view and is valid until the next
     * saveState() or loadState().
     */
    virtual const char *saveState() const = 0;

    /** Arranges the view as a text from saveState() tells; what makes no sense in it is passed over. May be null. */
    virtual void loadState(const char *state) = 0;

    /**
     * How often the node map is polled, in milliseconds; up to 2147483647, which is taken for more than that. It is 0
     * until it is set: with that polling tells the node map that no time has passed, so that it reads nothing anew, as
     * often as the event loop runs, which keeps a processor busy.
     */
    virtual void setPollingTime(unsigned long milliseconds) = 0;
    virtual unsigned long getPollingTime() = 0;

    /** Polling is off until it is enabled. */
    virtual void enablePolling(bool on) = 0;
    virtual bool isPollingEnabled() = 0;
};

} // namespace OrvGui
