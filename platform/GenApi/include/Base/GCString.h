#pragma once

#include <Base/GCNamespace.h>

#include <cstddef>
#include <string>

namespace GENICAM_NAMESPACE {

/** A text of GenICam: bytes in UTF-8. A null pointer reads as the empty text. */
class ORV_GENAPI_EXPORT gcstring
{
public:
    gcstring() = default;
    gcstring(const char *text)
        : m_text(text ? text : "")
    {
    }
    gcstring(const char *text, std::size_t count)
        : m_text(text, count)
    {
    }
    explicit gcstring(std::string text)
        : m_text(std::move(text))
    {
    }

    gcstring &operator=(const char *text)
    {
        m_text = text ? text : "";
        return *this;
    }

    /** The text with a terminating zero; valid until the next change of this object. */
    const char *c_str() const { return m_text.c_str(); }
    operator const char *() const { return m_text.c_str(); }

    /** Length in bytes. */
    std::size_t length() const { return m_text.length(); }
    std::size_t size() const { return m_text.length(); }
    bool empty() const { return m_text.empty(); }

    gcstring &operator+=(const gcstring &other)
    {
        m_text += other.m_text;
        return *this;
    }

    friend gcstring operator+(const gcstring &left, const gcstring &right)
    {
        return gcstring(left.m_text + right.m_text);
    }
    friend gcstring operator+(const gcstring &left, const char *right) { return left + gcstring(right); }
    friend gcstring operator+(const char *left, const gcstring &right) { return gcstring(left) + right; }

    friend bool operator==(const gcstring &left, const gcstring &right) { return left.m_text == right.m_text; }
    friend bool operator==(const gcstring &left, const char *right) { return left == gcstring(right); }
    friend bool operator==(const char *left, const gcstring &right) { return gcstring(left) == right; }
    friend bool operator!=(const gcstring &left, const gcstring &right) { return !(left == right); }
    friend bool operator!=(const gcstring &left, const char *right) { return !(left == right); }
    friend bool operator!=(const char *left, const gcstring &right) { return !(left == right); }
    friend bool operator<(const gcstring &left, const gcstring &right) { return left.m_text < right.m_text; }
    friend bool operator>(const gcstring &left, const gcstring &right) { return right < left; }

private:
    std::string m_text;
};

} // namespace GENICAM_NAMESPACE
