#pragma once

#include <Base/GCException.h>
#include <Base/GCString.h>
#include <GenApi/Autovector.h>
#include <GenApi/Container.h>
#include <GenApi/INodeMap.h>
#include <GenApi/NodeCallback.h>
#include <GenApi/NodeMapRef.h>
#include <GenApi/Pointer.h>
#include <GenApi/PortImpl.h>
#include <GenApi/Synch.h>
#include <GenApi/Types.h>
