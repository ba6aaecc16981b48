// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCBase.h>
#include <GenApi/Autovector.h>
#include <GenApi/Container.h>
#include <GenApi/GenApiVersion.h>
#include <GenApi/INodeMap.h>
#include <GenApi/NodeCallback.h>
#include <GenApi/NodeMapRef.h>
#include <GenApi/Persistence.h>
#include <GenApi/Pointer.h>
#include <GenApi/PortImpl.h>
#include <GenApi/StructPort.h>
#include <GenApi/Synch.h>
#include <GenApi/Types.h>
