#pragma once

#include <Base/GCNamespace.h>
#include <Base/GCString.h>
#include <Base/GCStringVector.h>

#include <cstdint>
#include <vector>

namespace GENAPI_NAMESPACE {

/** What may be done with a node now. */
enum EAccessMode {
    NI = 0, ///< not implemented
    NA = 1, ///< implemented, but not available now
    WO = 2, ///< write only
    RO = 3, ///< read only
    RW = 4, ///< read and write
    _UndefinedAccesMode = 5,
    _CycleDetectAccesMode = 6
};

/** For whom a node is meant. */
enum EVisibility { Beginner = 0, Expert = 1, Guru = 2, Invisible = 3, _UndefinedVisibility = 99 };

/** How a node's value may be cached. */
enum ECachingMode {
    NoCache = 0, ///< every read goes to the device
    WriteThrough = 1, ///< a written value is kept as the value
    WriteAround = 2, ///< a write drops the kept value; the next read goes to the device
    _UndefinedCachingMode = 3
};

/** How a number is best shown. */
enum ERepresentation {
    Linear = 0,
    Logarithmic = 1,
    Boolean = 2,
    PureNumber = 3,
    HexNumber = 4,
    IPV4Address = 5,
    MACAddress = 6,
    _UndefinedRepresentation = 7
};

/** How a floating-point number is written. */
enum EDisplayNotation { fnAutomatic = 0, fnFixed = 1, fnScientific = 2, _UndefinedEDisplayNotation = 3 };

/** The interface that best describes a node. */
enum EInterfaceType {
    intfIValue = 0,
    intfIBase = 1,
    intfIInteger = 2,
    intfIBoolean = 3,
    intfICommand = 4,
    intfIFloat = 5,
    intfIString = 6,
    intfIRegister = 7,
    intfICategory = 8,
    intfIEnumeration = 9,
    intfIEnumEntry = 10,
    intfIPort = 11
};

/** Which values between minimum and maximum a number may take. */
enum EIncMode {
    noIncrement = 0, ///< all
    fixedIncrement = 1, ///< those on a grid that starts at the minimum
    listIncrement = 2 ///< those of a list
};

/** When a node callback is called. */
enum ECallbackType {
    cbPostInsideLock = 1, ///< while the node map's lock is still held
    cbPostOutsideLock = 2 ///< after it was released
};

/** Names a registered node callback until it is deregistered. */
using CallbackHandleType = intptr_t;

using StringList_t = GENICAM_NAMESPACE::gcstring_vector;

/** Where a node's name is defined. */
enum ENameSpace { Custom = 0, Standard = 1, _UndefinedNameSpace = 2 };

enum EYesNo { No = 0, Yes = 1, _UndefinedYesNo = 2 };

} // namespace GENAPI_NAMESPACE
