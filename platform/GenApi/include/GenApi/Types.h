// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

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

/** Whether a node map calls callbacks. */
enum ECallbackSuppressMode {
    csmOff = 0, ///< it does
    csmActive = 1, ///< it does not; what is left out is not made up for
    csmOnce = 2 ///< it leaves out those of the next change
};

/** How nodes depend on one another, see INode::GetChildren(). */
enum ELinkType {
    ctParentNodes = 0,
    ctReadingChildren = 1,
    ctWritingChildren = 2,
    ctInvalidatingChildren = 3,
    ctDependingNodes = 4,
    ctTerminalNodes = 5,
    ctValueChangingChildren = 6
};

/** Names a registered node callback until it is deregistered. */
using CallbackHandleType = intptr_t;

using StringList_t = GENICAM_NAMESPACE::gcstring_vector;

/** Where a node's name is defined. */
enum ENameSpace { Custom = 0, Standard = 1, _UndefinedNameSpace = 2 };

/** The standard that a description's standard features follow. */
enum EStandardNameSpace { None = 0, GEV = 1, IIDC = 2, CL = 3, USB = 4, _UndefinedStandardNameSpace = 5 };

enum EYesNo { No = 0, Yes = 1, _UndefinedYesNo = 2 };

enum ESign { Signed = 0, Unsigned = 1, _UndefinedSign = 2 };

enum EEndianess { BigEndian = 0, LittleEndian = 1, _UndefinedEndian = 2 };

/** How a converted value follows the one it is made from. */
enum ESlope { Increasing = 0, Decreasing = 1, Varying = 2, Automatic = 3, _UndefinedESlope = 4 };

/** The way a formula of a converter leads. */
enum EInputDirection { idFrom = 0, idTo = 1, idNone = 2 };

enum EGenApiSchemaVersion { v1_0 = 1, v1_1 = 2, _Undefined = -1 };

} // namespace GENAPI_NAMESPACE
