#include "cli/lexer.h"

#include "cli/script_error.h"

#include <cctype>
#include <charconv>

namespace tavrin::cli {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t skipBlanks(const std::string& s, std::size_t i) {
    while (i < s.size() && isBlank(s[i]))
        ++i;
    return i;
}

// Reads the quoted token starting at s[i] == '"'; returns the index past its closing quote.
std::size_t readQuoted(const std::string& s, std::size_t i, std::string& out) {
    for (++i; i < s.size(); ++i) {
        char c = s[i];
        if (c == '"') return i + 1;
        if (c == '\\') {
            if (i + 1 >= s.size() || (s[i + 1] != '"' && s[i + 1] != '\\'))
                throw ScriptError("only \\\" and \\\\ may follow a backslash in quotes");
            c = s[++i];
        }
        out += c;
    }
    throw ScriptError("a quote is not closed");
}

bool allOf(const std::string& s, std::size_t from, bool (*pred)(char)) {
    if (from >= s.size()) return false;
    for (std::size_t i = from; i < s.size(); ++i)
        if (!pred(s[i])) return false;
    return true;
}

bool isHexDigit(char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; }

} // namespace

bool isSilentLine(const std::string& line) {
    std::size_t i = skipBlanks(line, 0);
    return i == line.size() || line[i] == '#';
}

std::vector<Token> tokenize(const std::string& line) {
    std::vector<Token> tokens;
    std::size_t i = skipBlanks(line, 0);
    while (i < line.size()) {
        Token t;
        if (line[i] == '"') {
            t.quoted = true;
            i = readQuoted(line, i, t.text);
            if (i < line.size() && !isBlank(line[i]))
                throw ScriptError("a blank must follow a closing quote");
        } else {
            while (i < line.size() && !isBlank(line[i])) {
                if (line[i] == '"') throw ScriptError("a quote inside a token: " + line.substr(i));
                t.text += line[i++];
            }
        }
        tokens.push_back(std::move(t));
        i = skipBlanks(line, i);
    }
    return tokens;
}

std::optional<int64_t> parseInteger(const Token& token) {
    const std::string& s = token.text;
    if (token.quoted) return std::nullopt;
    if (s.size() > 2 && s[0] == '0' && (s[1] == 'x' || s[1] == 'X')) {
        if (s.size() > 10 || !allOf(s, 2, isHexDigit)) return std::nullopt;
        return static_cast<int64_t>(std::stoull(s.substr(2), nullptr, 16));
    }
    std::size_t digits = (!s.empty() && s[0] == '-') ? 1 : 0;
    if (!allOf(s, digits, isDigit) || s.size() - digits > 18) return std::nullopt;
    int64_t v = 0;
    std::from_chars(s.data() + digits, s.data() + s.size(), v);
    return digits ? -v : v;
}

std::optional<double> parseNumber(const Token& token) {
    if (auto whole = parseInteger(token)) return static_cast<double>(*whole);
    const std::string& s = token.text;
    if (token.quoted) return std::nullopt;
    std::size_t dot = s.find('.');
    std::size_t start = (!s.empty() && s[0] == '-') ? 1 : 0;
    if (dot == std::string::npos || dot == start) return std::nullopt;
    if (!allOf(s.substr(start, dot - start), 0, isDigit) || !allOf(s, dot + 1, isDigit))
        return std::nullopt;
    double v = 0;
    auto res = std::from_chars(s.data() + start, s.data() + s.size(), v);
    if (res.ec != std::errc()) return std::nullopt;
    return start ? -v : v;
}

} // namespace tavrin::cli
