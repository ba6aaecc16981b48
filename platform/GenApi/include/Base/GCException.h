#pragma once

#include <Base/GCString.h>

#include <exception>
#include <string>

namespace GENICAM_NAMESPACE {

/** Base of everything that GenApi throws. */
class ORV_GENAPI_EXPORT GenericException : public std::exception
{
public:
    /**
     * \a description is the text for people and may be empty; \a sourceFileName and \a sourceLine name the place that
     * threw, \a exceptionType the class.
     */
    GenericException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                     const char *exceptionType = "GenericException");
    GenericException(const GenericException &) = default;
    GenericException &operator=(const GenericException &) = default;
    ~GenericException() override;

    /** The text for people, UTF-8; never null, may be empty. */
    virtual const char *GetDescription() const throw();

    /** Description, class and place in one text. */
    const char *what() const throw() override;

    virtual const char *GetSourceFileName() const throw();
    virtual unsigned int GetSourceLine() const throw();

private:
    std::string m_description;
    std::string m_what;
    std::string m_sourceFileName;
    unsigned int m_sourceLine;
};

/** Memory could not be had. */
class ORV_GENAPI_EXPORT BadAllocException : public GenericException
{
public:
    BadAllocException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "BadAllocException")
    {
    }
    ~BadAllocException() override;
};

/** An argument cannot be used: a text that is no number, an entry that does not exist. */
class ORV_GENAPI_EXPORT InvalidArgumentException : public GenericException
{
public:
    InvalidArgumentException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "InvalidArgumentException")
    {
    }
    ~InvalidArgumentException() override;
};

/** A value lies outside the range of a node, or off its increment. */
class ORV_GENAPI_EXPORT OutOfRangeException : public GenericException
{
public:
    OutOfRangeException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "OutOfRangeException")
    {
    }
    ~OutOfRangeException() override;
};

/** A description gives a node a property that it cannot have, or none where it needs one. */
class ORV_GENAPI_EXPORT PropertyException : public GenericException
{
public:
    PropertyException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "PropertyException")
    {
    }
    ~PropertyException() override;
};

/** Something failed while working: a description that cannot be read, a formula that cannot be evaluated. */
class ORV_GENAPI_EXPORT RuntimeException : public GenericException
{
public:
    RuntimeException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "RuntimeException")
    {
    }
    ~RuntimeException() override;
};

/** The caller broke a rule: a null pointer, a port that is not connected. */
class ORV_GENAPI_EXPORT LogicalErrorException : public GenericException
{
public:
    LogicalErrorException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "LogicalErrorException")
    {
    }
    ~LogicalErrorException() override;
};

/** The access mode of a node does not allow the operation. */
class ORV_GENAPI_EXPORT AccessException : public GenericException
{
public:
    AccessException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "AccessException")
    {
    }
    ~AccessException() override;
};

/** An operation took too long. */
class ORV_GENAPI_EXPORT TimeoutException : public GenericException
{
public:
    TimeoutException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "TimeoutException")
    {
    }
    ~TimeoutException() override;
};

/** An object does not have the interface that was asked for. */
class ORV_GENAPI_EXPORT DynamicCastException : public GenericException
{
public:
    DynamicCastException(const char *description, const char *sourceFileName, unsigned int sourceLine)
        : GenericException(description, sourceFileName, sourceLine, "DynamicCastException")
    {
    }
    ~DynamicCastException() override;
};

} // namespace GENICAM_NAMESPACE
