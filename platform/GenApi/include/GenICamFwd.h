// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCTypes.h>

/** The classes that programs declare ahead, under the namespaces that the headers have. */

namespace GENICAM_NAMESPACE {

class gcstring;
class gcstring_vector;

} // namespace GENICAM_NAMESPACE

namespace GENAPI_NAMESPACE {

GENICAM_INTERFACE IBase;
GENICAM_INTERFACE IBoolean;
GENICAM_INTERFACE ICategory;
GENICAM_INTERFACE IChunkPort;
GENICAM_INTERFACE ICommand;
GENICAM_INTERFACE IDeviceInfo;
GENICAM_INTERFACE IEnumEntry;
GENICAM_INTERFACE IEnumeration;
GENICAM_INTERFACE IFloat;
GENICAM_INTERFACE IInteger;
GENICAM_INTERFACE INode;
GENICAM_INTERFACE INodeMap;
GENICAM_INTERFACE IPort;
GENICAM_INTERFACE IPortConstruct;
GENICAM_INTERFACE IPortRecorder;
GENICAM_INTERFACE IPortReplay;
GENICAM_INTERFACE IPortStackedConstruct;
GENICAM_INTERFACE IPortWriteList;
GENICAM_INTERFACE IRegister;
GENICAM_INTERFACE ISelector;
GENICAM_INTERFACE IString;
GENICAM_INTERFACE IUserData;
GENICAM_INTERFACE IValue;
class CLock;

} // namespace GENAPI_NAMESPACE
