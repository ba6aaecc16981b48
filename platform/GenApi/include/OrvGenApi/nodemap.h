// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>
#include <GenApi/IPort.h>

#include <memory>
#include <string>
#include <string_view>

namespace OrvGenApi {

/**
 * A node map read from a GenICam description (XML, schema 1.0 and 1.1).
 *
 * Both loaders throw one GenICam::GenericException with a message that names the place ("FILE:LINE: ...") when the
 * description cannot be used: it cannot be read, is no well-formed XML, has no RegisterDescription, a node twice,
 * values or selectors that go round in a circle. A formula that cannot be parsed, and links that lead too deep for the
 * stack, throw when they are needed. A link to a node that does not exist
 * or has no value of the kind that is needed makes the node that has it not implemented; a category leaves out such a
 * feature. Registers behind a port that is not
 * connected are not implemented either.
 */
class ORV_GENAPI_EXPORT NodeMap : public GenApi::INodeMap
{
public:
    /** Reads the file at \a path. \a deviceName is what GetDeviceName() answers. */
    static std::unique_ptr<NodeMap> fromFile(const std::string &path, const std::string &deviceName = "Device");

    /** Reads \a xml; \a sourceName stands in messages in place of a file name. */
    static std::unique_ptr<NodeMap> fromString(std::string_view xml, const std::string &sourceName = "description",
                                               const std::string &deviceName = "Device");

    /** Destroys all nodes and the callbacks that are still registered. Nothing may use the map any more. */
    virtual ~NodeMap() = default;

    /**
     * Registers read and write through \a port, which outlives this map or is replaced (null disconnects). False when
     * the description has no port of that name. Drops all kept values.
     */
    virtual bool connect(GenApi::IPort *port, const std::string &portName = "Device") = 0;

    /** The description's ModelName and VendorName; UTF-8. */
    virtual std::string modelName() const = 0;
    virtual std::string vendorName() const = 0;
};

} // namespace OrvGenApi
