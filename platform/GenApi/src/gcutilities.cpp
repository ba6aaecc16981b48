// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <Base/GCUtilities.h>

#include <cctype>
#include <cstdlib>
#include <cstring>

namespace GENICAM_NAMESPACE {

bool DoesEnvironmentVariableExist(const gcstring &VariableName)
{
    return std::getenv(VariableName.c_str());
}

bool GetValueOfEnvironmentVariable(const gcstring &VariableName, gcstring &VariableContent)
{
    const char *const value = std::getenv(VariableName.c_str());
    if (value)
        VariableContent = value;
    return value;
}

gcstring GetValueOfEnvironmentVariable(const gcstring &VariableName)
{
    gcstring value;
    if (!GetValueOfEnvironmentVariable(VariableName, value))
        throw RUNTIME_EXCEPTION("there is no environment variable '%s'", VariableName.c_str());
    return value;
}

void ReplaceEnvironmentVariables(gcstring &Buffer, bool ReplaceBlankBy20)
{
    std::string text = Buffer.c_str();
    for (std::size_t begin = text.find("$("); begin != std::string::npos; begin = text.find("$(", begin)) {
        const std::size_t end = text.find(')', begin);
        if (end == std::string::npos)
            break;
        const gcstring value = GetValueOfEnvironmentVariable(gcstring(text.substr(begin + 2, end - begin - 2)));
        text.replace(begin, end - begin + 1, value.c_str());
        begin += value.size();
    }
    if (ReplaceBlankBy20) {
        for (std::size_t blank = text.find(' '); blank != std::string::npos; blank = text.find(' ', blank))
            text.replace(blank, 1, "%20");
    }
    Buffer = text.c_str();
}

gcstring UrlEncode(const gcstring &Input)
{
    std::string url;
    for (const char byte : std::string(Input.c_str())) {
        const char c = byte == '\\' ? '/' : byte;
        const auto code = static_cast<unsigned char>(c);
        if ((code < 128 && std::isalnum(code)) || std::strchr("$-_.+!*'(),;/?:@=&", c)) {
            url += c;
        } else {
            char escaped[4];
            std::snprintf(escaped, sizeof escaped, "%%%02x", static_cast<unsigned>(code));
            url += escaped;
        }
    }
    return gcstring(url);
}

gcstring UrlDecode(const gcstring &Input)
{
    const std::string url = Input.c_str();
    std::string text;
    for (std::size_t i = 0; i < url.size(); ++i) {
        const auto digit = [&](std::size_t at) {
            return at < url.size() && std::isxdigit(static_cast<unsigned char>(url[at]));
        };
        if (url[i] == '%' && digit(i + 1) && digit(i + 2)) {
            text += static_cast<char>(std::stoi(url.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            text += url[i];
        }
    }
    return gcstring(text);
}

void Tokenize(const gcstring &str, gcstring_vector &tokens, const gcstring &delimiters)
{
    std::size_t begin = str.find_first_not_of(delimiters);
    while (begin != gcstring::npos) {
        const std::size_t end = str.find_first_of(delimiters, begin);
        tokens.push_back(str.substr(begin, end == gcstring::npos ? end : end - begin));
        begin = str.find_first_not_of(delimiters, end);
    }
}

} // namespace GENICAM_NAMESPACE
