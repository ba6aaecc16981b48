// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCTypes.h>

#include <cstddef>
#include <istream>
#include <ostream>
#include <string>

/** "Not found", and "all that follow". */
#define GCSTRING_NPOS size_t(-1)

namespace GENICAM_NAMESPACE {

/** A text of GenICam: bytes in UTF-8. A null pointer reads as the empty text. */
class ORV_GENAPI_EXPORT gcstring
{
public:
    static constexpr std::size_t npos = GCSTRING_NPOS;
    static std::size_t _npos() { return npos; }

    gcstring() = default;
    gcstring(const char *text)
        : m_text(text ? text : "")
    {
    }
    gcstring(const char *text, std::size_t count)
        : m_text(text, count)
    {
    }
    gcstring(std::size_t count, char ch)
        : m_text(count, ch)
    {
    }
    explicit gcstring(std::string text)
        : m_text(std::move(text))
    {
    }

    gcstring &operator=(const char *text) { return assign(text); }

    gcstring &assign(const gcstring &str) { return *this = str; }
    gcstring &assign(std::size_t count, char ch)
    {
        m_text.assign(count, ch);
        return *this;
    }
    gcstring &assign(const char *text)
    {
        m_text = text ? text : "";
        return *this;
    }
    gcstring &assign(const char *text, std::size_t count)
    {
        m_text.assign(text, count);
        return *this;
    }
    gcstring &append(const gcstring &str) { return *this += str; }
    gcstring &append(std::size_t count, char ch)
    {
        m_text.append(count, ch);
        return *this;
    }
    gcstring &erase(std::size_t pos, std::size_t len = npos)
    {
        m_text.erase(pos, len);
        return *this;
    }
    void resize(std::size_t n) { m_text.resize(n); }
    void reserve(std::size_t n = 0) { m_text.reserve(n); }
    void swap(gcstring &Right) { m_text.swap(Right.m_text); }

    /** The text with a terminating zero; valid until the next change of this object. */
    const char *c_str() const { return m_text.c_str(); }
    operator const char *() const { return m_text.c_str(); }

    /** Length in bytes. */
    std::size_t length() const { return m_text.length(); }
    std::size_t size() const { return m_text.length(); }
    std::size_t max_size() const { return m_text.max_size(); }
    bool empty() const { return m_text.empty(); }

    /** Negative when this one comes before \a str, 0 when they are equal. */
    int compare(const gcstring &str) const { return m_text.compare(str.m_text); }
    gcstring substr(std::size_t offset = 0, std::size_t count = npos) const
    {
        return gcstring(m_text.substr(offset, count));
    }

    // Places; npos where there is none.
    std::size_t find(char ch, std::size_t offset = 0) const { return m_text.find(ch, offset); }
    std::size_t find(const gcstring &str, std::size_t offset = 0) const { return m_text.find(str.m_text, offset); }
    std::size_t find(const gcstring &str, std::size_t offset, std::size_t count) const
    {
        return m_text.find(str.c_str(), offset, count);
    }
    std::size_t find(const char *text, std::size_t offset = 0) const { return m_text.find(text, offset); }
    std::size_t find(const char *text, std::size_t offset, std::size_t count) const
    {
        return m_text.find(text, offset, count);
    }
    std::size_t find_first_of(const gcstring &str, std::size_t offset = 0) const
    {
        return m_text.find_first_of(str.m_text, offset);
    }
    std::size_t find_first_not_of(const gcstring &str, std::size_t offset = 0) const
    {
        return m_text.find_first_not_of(str.m_text, offset);
    }
    std::size_t find_last_of(const gcstring &str, std::size_t offset = npos) const
    {
        return m_text.find_last_of(str.m_text, offset);
    }
    std::size_t find_last_of(char ch, std::size_t offset = npos) const { return m_text.find_last_of(ch, offset); }
    std::size_t find_last_not_of(const gcstring &str, std::size_t offset = npos) const
    {
        return m_text.find_last_not_of(str.m_text, offset);
    }
    std::size_t find_last_not_of(char ch, std::size_t offset = npos) const
    {
        return m_text.find_last_not_of(ch, offset);
    }

    gcstring &operator+=(const gcstring &other)
    {
        m_text += other.m_text;
        return *this;
    }
    gcstring &operator+=(const char *text) { return *this += gcstring(text); }
    gcstring &operator+=(char ch)
    {
        m_text += ch;
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

    friend std::ostream &operator<<(std::ostream &ostr, const gcstring &str) { return ostr << str.c_str(); }
    friend std::istream &operator>>(std::istream &istr, gcstring &str) { return istr >> str.m_text; }
    friend std::istream &getline(std::istream &is, gcstring &str) { return std::getline(is, str.m_text); }
    friend std::istream &getline(std::istream &is, gcstring &str, char delim)
    {
        return std::getline(is, str.m_text, delim);
    }

private:
    std::string m_text;
};

// Also by their full names.
std::istream &getline(std::istream &is, gcstring &str);
std::istream &getline(std::istream &is, gcstring &str, char delim);

} // namespace GENICAM_NAMESPACE
