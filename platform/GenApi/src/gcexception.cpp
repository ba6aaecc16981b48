// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <Base/GCException.h>

namespace GENICAM_NAMESPACE {

GenericException::GenericException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                                   const char *exceptionType)
    : m_description(description ? description : "")
    , m_sourceFileName(sourceFileName ? sourceFileName : "")
    , m_sourceLine(sourceLine)
{
    m_what = m_description + " : " + (exceptionType ? exceptionType : "GenericException") + " thrown (file '"
        + m_sourceFileName + "', line " + std::to_string(m_sourceLine) + ")";
}

GenericException::~GenericException() = default;

const char *GenericException::GetDescription() const throw()
{
    return m_description.c_str();
}

const char *GenericException::what() const throw()
{
    return m_what.c_str();
}

const char *GenericException::GetSourceFileName() const throw()
{
    return m_sourceFileName.c_str();
}

unsigned int GenericException::GetSourceLine() const throw()
{
    return m_sourceLine;
}

BadAllocException::~BadAllocException() = default;
InvalidArgumentException::~InvalidArgumentException() = default;
OutOfRangeException::~OutOfRangeException() = default;
PropertyException::~PropertyException() = default;
RuntimeException::~RuntimeException() = default;
LogicalErrorException::~LogicalErrorException() = default;
AccessException::~AccessException() = default;
TimeoutException::~TimeoutException() = default;
DynamicCastException::~DynamicCastException() = default;

namespace {

template <typename Number>
void checkLimits(Number value, Number minimum, Number maximum, const char *file, unsigned int line)
{
    const bool isBelow = value < minimum;
    if (!isBelow && !(value > maximum))
        return;
    std::ostringstream text;
    text << value << " lies " << (isBelow ? "below " : "above ") << (isBelow ? minimum : maximum);
    throw OutOfRangeException(text.str().c_str(), file, line);
}

} // namespace

void checkRange(int64_t value, int64_t minimum, int64_t maximum, int64_t increment, const char *file, unsigned int line)
{
    checkLimits(value, minimum, maximum, file, line);
    if (increment == 0)
        throw LogicalErrorException("the increment is 0", file, line);
    const uint64_t step = increment < 0 ? 0 - static_cast<uint64_t>(increment) : static_cast<uint64_t>(increment);
    if ((static_cast<uint64_t>(value) - static_cast<uint64_t>(minimum)) % step != 0) {
        const std::string text = std::to_string(value) + " is no whole number of steps of " + std::to_string(increment)
            + " from " + std::to_string(minimum);
        throw OutOfRangeException(text.c_str(), file, line);
    }
}

void checkRange(double value, double minimum, double maximum, const char *file, unsigned int line)
{
    checkLimits(value, minimum, maximum, file, line);
}

} // namespace GENICAM_NAMESPACE
