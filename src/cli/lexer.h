#pragma once
// Splitting a script line into tokens, and reading numbers out of them.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tavrin::cli {

struct Token {
    std::string text;
    bool quoted = false; // "cancel" in quotes is a path, cancel bare is the word
};

// True for a blank line and for a comment (first non-blank character '#').
bool isSilentLine(const std::string& line);

// Tokens separated by blanks. A token in double quotes may hold blanks; its only
// escapes are \" and \\ (backslash quote, backslash backslash). Throws ScriptError
// for a line that doesn't split.
std::vector<Token> tokenize(const std::string& line);

// A whole number: decimal with an optional leading '-', or 0x and up to eight hex
// digits (read as unsigned). Quoted tokens are never numbers.
std::optional<int64_t> parseInteger(const Token& token);

// A whole number as above, or a decimal with a fraction ("-12.5").
std::optional<double> parseNumber(const Token& token);

} // namespace tavrin::cli
