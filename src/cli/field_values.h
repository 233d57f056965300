#pragma once
// Values of the editor's fields as text, and back from a script token.
#include "cli/lexer.h"
#include "editor/records.h"
#include "platform/variant.h"

#include <cstdint>
#include <string>

namespace tavrin::cli {

std::string valueText(int16_t v);
std::string valueText(int32_t v);
std::string valueText(uint8_t v);
std::string valueText(bool v);
std::string valueText(const std::string& v);
std::string valueText(const vb::Variant& v);
// A record prints its fields in order: "Red=1 Green=2 ...".
std::string valueText(const PalRecord& r);
std::string valueText(const UVRecord& r);
std::string valueText(const TriRecord& r);
std::string valueText(const TextPixel& r);
std::string valueText(const MaskRecord& r);

// Each throws ScriptError when the token can't be a value of that kind. Whole numbers
// must fit the field; hex fills the field's width (0xFFFF is -1 in 16 bits).
void assign(int16_t& field, const Token& t);
void assign(int32_t& field, const Token& t);
void assign(uint8_t& field, const Token& t);
void assign(bool& field, const Token& t);        // True or False
void assign(std::string& field, const Token& t); // any token, quoted or bare
// A quoted token is a text; bare: Empty, True, False or a number, which keeps the
// kind a literal of it would have (16-bit, 32-bit, or a double).
void assign(vb::Variant& field, const Token& t);

} // namespace tavrin::cli
