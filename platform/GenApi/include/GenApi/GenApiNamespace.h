#pragma once

#include <Base/GCNamespace.h>
