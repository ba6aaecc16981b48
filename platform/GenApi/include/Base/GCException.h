// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCString.h>
#include <Base/GCTypes.h>

#include <cstdarg>
#include <cstdio>
#include <sstream>
#include <string>

namespace GENICAM_NAMESPACE {

/**
 * Base of everything that GenApi throws. Intentionally no std::exception: a handler for those stands in front of the
 * one for this class in some programs, and does something else.
 */
class ORV_GENAPI_EXPORT GenericException
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
    virtual ~GenericException();

    /** The text for people, UTF-8; never null, may be empty. */
    virtual const char *GetDescription() const throw();

    /** Description, class and place in one text. */
    virtual const char *what() const throw();

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
    BadAllocException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                      const char *exceptionType = "BadAllocException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~BadAllocException() override;
};

/** An argument cannot be used: a text that is no number, an entry that does not exist. */
class ORV_GENAPI_EXPORT InvalidArgumentException : public GenericException
{
public:
    InvalidArgumentException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                             const char *exceptionType = "InvalidArgumentException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~InvalidArgumentException() override;
};

/** A value lies outside the range of a node, or off its increment. */
class ORV_GENAPI_EXPORT OutOfRangeException : public GenericException
{
public:
    OutOfRangeException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                        const char *exceptionType = "OutOfRangeException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~OutOfRangeException() override;
};

/** A description gives a node a property that it cannot have, or none where it needs one. */
class ORV_GENAPI_EXPORT PropertyException : public GenericException
{
public:
    PropertyException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                      const char *exceptionType = "PropertyException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~PropertyException() override;
};

/** Something failed while working: a description that cannot be read, a formula that cannot be evaluated. */
class ORV_GENAPI_EXPORT RuntimeException : public GenericException
{
public:
    RuntimeException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                     const char *exceptionType = "RuntimeException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~RuntimeException() override;
};

/** The caller broke a rule: a null pointer, a port that is not connected. */
class ORV_GENAPI_EXPORT LogicalErrorException : public GenericException
{
public:
    LogicalErrorException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                          const char *exceptionType = "LogicalErrorException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~LogicalErrorException() override;
};

/** The access mode of a node does not allow the operation. */
class ORV_GENAPI_EXPORT AccessException : public GenericException
{
public:
    AccessException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                    const char *exceptionType = "AccessException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~AccessException() override;
};

/** An operation took too long. */
class ORV_GENAPI_EXPORT TimeoutException : public GenericException
{
public:
    TimeoutException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                     const char *exceptionType = "TimeoutException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~TimeoutException() override;
};

/** An object does not have the interface that was asked for. */
class ORV_GENAPI_EXPORT DynamicCastException : public GenericException
{
public:
    DynamicCastException(const char *description, const char *sourceFileName, unsigned int sourceLine,
                         const char *exceptionType = "DynamicCastException")
        : GenericException(description, sourceFileName, sourceLine, exceptionType)
    {
    }
    ~DynamicCastException() override;
};

/** Makes exceptions of kind \a E, with a text or with a printf format and what belongs to it. */
template <typename E>
class ExceptionReporter
{
public:
    ExceptionReporter(const char *pSourceFileName, int SourceLine, const char *pExceptionType = "GenericException")
        : m_sourceFileName(pSourceFileName)
        , m_sourceLine(SourceLine)
        , m_exceptionType(pExceptionType)
    {
    }

    __attribute__((format(printf, 2, 3))) E Report(const char *pFormat, ...)
    {
        char text[2048];
        va_list arguments;
        va_start(arguments, pFormat);
        vsnprintf(text, sizeof text, pFormat, arguments);
        va_end(arguments);
        return made(text);
    }
    E Report() { return made(""); }
    E Report(const std::string &s) { return made(s.c_str()); }
    E Report(const std::stringstream &str) { return made(str.str().c_str()); }

private:
    E made(const char *text) const
    {
        return E(text, m_sourceFileName, static_cast<unsigned int>(m_sourceLine), m_exceptionType);
    }

    const char *const m_sourceFileName;
    const int m_sourceLine;
    const char *const m_exceptionType;
};

// To throw: throw RUNTIME_EXCEPTION("no answer from %s", name).
#define GENERIC_EXCEPTION ORV_REPORT_EXCEPTION(GenericException)
#define BAD_ALLOC_EXCEPTION ORV_REPORT_EXCEPTION(BadAllocException)
#define INVALID_ARGUMENT_EXCEPTION ORV_REPORT_EXCEPTION(InvalidArgumentException)
#define OUT_OF_RANGE_EXCEPTION ORV_REPORT_EXCEPTION(OutOfRangeException)
#define PROPERTY_EXCEPTION ORV_REPORT_EXCEPTION(PropertyException)
#define RUNTIME_EXCEPTION ORV_REPORT_EXCEPTION(RuntimeException)
#define LOGICAL_ERROR_EXCEPTION ORV_REPORT_EXCEPTION(LogicalErrorException)
#define ACCESS_EXCEPTION ORV_REPORT_EXCEPTION(AccessException)
#define TIMEOUT_EXCEPTION ORV_REPORT_EXCEPTION(TimeoutException)
#define DYNAMICCAST_EXCEPTION ORV_REPORT_EXCEPTION(DynamicCastException)
#define ORV_REPORT_EXCEPTION(kind)                                                                                     \
    GENICAM_NAMESPACE::ExceptionReporter<GENICAM_NAMESPACE::kind>(__FILE__, __LINE__, #kind).Report

/** Throws an OutOfRangeException unless the value lies within the limits, in whole steps from the lower one. */
#define CHECK_RANGE_I64(_Value, _Min, _Max, _Inc)                                                                      \
    GENICAM_NAMESPACE::checkRange(static_cast<int64_t>(_Value), static_cast<int64_t>(_Min),                            \
                                  static_cast<int64_t>(_Max), static_cast<int64_t>(_Inc), __FILE__, __LINE__)

/** The same for numbers without steps. */
#define CHECK_RANGE_FLT(_Value, _Min, _Max)                                                                            \
    GENICAM_NAMESPACE::checkRange(double(_Value), double(_Min), double(_Max), __FILE__, __LINE__)

/** Throws a LogicalErrorException for what a dynamic_cast has not led to. */
#define CHECK_DYNAMIC_CAST_POINTER(_Pointer)                                                                           \
    if (!(_Pointer))                                                                                                   \
    throw LOGICAL_ERROR_EXCEPTION("the object is of another type")

ORV_GENAPI_EXPORT void checkRange(int64_t value, int64_t minimum, int64_t maximum, int64_t increment, const char *file,
                                  unsigned int line);
ORV_GENAPI_EXPORT void checkRange(double value, double minimum, double maximum, const char *file, unsigned int line);

} // namespace GENICAM_NAMESPACE
