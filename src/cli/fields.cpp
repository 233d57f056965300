// The field table, made from the form's own list of its fields: a new field is known
// here as soon as it is declared (a new kind of value needs its valueText and assign).
#include "cli/fields.h"

#include "cli/field_values.h"
#include "cli/script_error.h"

#include <concepts>

namespace tavrin::cli {

namespace {

template <class T>
concept Settable = requires(T& v, const Token& t) {
    assign(v, t);
};

std::string range(int64_t lower, int64_t upper) {
    return std::to_string(lower) + ".." + std::to_string(upper);
}

template <class T> Field field(const char* name, T FrmMain::*member) {
    Field f{
        name, 0, [member](FrmMain& frm, const Index&) { return valueText(frm.*member); }, {}, {}};
    if constexpr (Settable<T>)
        f.set = [member](FrmMain& frm, const Index&, const Token& t) { assign(frm.*member, t); };
    return f;
}

template <class T> Field field(const char* name, vb::Array<T> FrmMain::*member) {
    Field f{name,
            1,
            [member](FrmMain& frm, const Index& i) { return valueText((frm.*member)(i[0])); },
            {},
            [member](FrmMain& frm) {
                const auto& a = frm.*member;
                return a.allocated() ? range(a.LBound(), a.UBound()) : std::string("unallocated");
            }};
    if constexpr (Settable<T>)
        f.set = [member](FrmMain& frm, const Index& i, const Token& t) {
            assign((frm.*member)(i[0]), t);
        };
    return f;
}

template <class T> Field field(const char* name, vb::Array3<T> FrmMain::*member) {
    return {name, 3,
            [member](FrmMain& frm, const Index& i) {
                return valueText((frm.*member)(i[0], i[1], i[2]));
            },
            [member](FrmMain& frm, const Index& i, const Token& t) {
                assign((frm.*member)(i[0], i[1], i[2]), t);
            },
            [member](FrmMain& frm) {
                const auto& a = frm.*member;
                return range(0, a.UBound(1)) + "," + range(0, a.UBound(2)) + "," +
                       range(0, a.UBound(3));
            }};
}

} // namespace

const std::vector<Field>& fields() {
    static const std::vector<Field> table = {
#define TAVRIN_FIELD(Type, name, ...) field(#name, &FrmMain::name),
#include "editor/frm_main_fields.def"
#undef TAVRIN_FIELD
    };
    return table;
}

const Field* findField(const std::string& name) {
    for (const Field& f : fields())
        if (f.name == name) return &f;
    return nullptr;
}

} // namespace tavrin::cli

#include "cli/args.h"

namespace tavrin::cli {

Index readIndex(const Field& f, Args& a) {
    Index i;
    for (int k = 0; k < f.rank; ++k) {
        if (a.atEnd())
            throw ScriptError(f.name + " needs " + std::to_string(f.rank) +
                              (f.rank == 1 ? " index" : " indices"));
        i.push_back(a.integer("an index", INT32_MIN, INT32_MAX));
    }
    return i;
}

std::string elementName(const Field& f, const Index& i) {
    if (i.empty()) return f.name;
    std::string out = f.name + "(";
    for (std::size_t k = 0; k < i.size(); ++k)
        out += (k ? "," : "") + std::to_string(i[k]);
    return out + ")";
}

} // namespace tavrin::cli
