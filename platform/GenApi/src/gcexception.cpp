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

} // namespace GENICAM_NAMESPACE
