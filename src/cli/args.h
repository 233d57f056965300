#pragma once
// The arguments of one command, taken in order; every getter names what it expected
// when the line doesn't give it.
#include "cli/lexer.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace tavrin::cli {

class Args {
public:
    explicit Args(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    bool atEnd() const { return pos_ >= tokens_.size(); }
    std::size_t remaining() const { return tokens_.size() - pos_; }
    const Token& peek() const { return tokens_.at(pos_); }

    const Token& next(const char* what);
    std::string text(const char* what) { return next(what).text; }
    // A bare word; one of choices when any are given.
    std::string word(const char* what, std::initializer_list<const char*> choices = {});
    int64_t integer(const char* what, int64_t min, int64_t max);
    double number(const char* what);
    // Nothing may follow.
    void end() const;

private:
    std::vector<Token> tokens_;
    std::size_t pos_ = 0;
};

} // namespace tavrin::cli
