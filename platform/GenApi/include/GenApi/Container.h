#pragma once

#include <Base/GCNamespace.h>

#include <vector>

namespace GENAPI_NAMESPACE {

struct INode;
struct IValue;

/** Nodes and features in the order of their description; the pointers belong to the node map. */
using NodeList_t = std::vector<INode *>;
using FeatureList_t = std::vector<IValue *>;

} // namespace GENAPI_NAMESPACE
