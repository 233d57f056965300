// The field table: one line per field of the main form. A new field needs one FIELD
// line here (and a valueText/assign overload if it brings a new kind of value).
#include "cli/fields.h"

#include "cli/field_values.h"
#include "cli/script_error.h"

#include <concepts>

namespace tavrin::cli {

namespace {

template <class T>
concept Settable = requires(T& v, const Token& t) { assign(v, t); };

std::string range(int64_t lower, int64_t upper) {
    return std::to_string(lower) + ".." + std::to_string(upper);
}

template <class T> Field field(const char* name, T FrmMain::*member) {
    Field f{name, 0, [member](FrmMain& frm, const Index&) { return valueText(frm.*member); }, {}, {}};
    if constexpr (Settable<T>)
        f.set = [member](FrmMain& frm, const Index&, const Token& t) { assign(frm.*member, t); };
    return f;
}

template <class T> Field field(const char* name, vb::Array<T> FrmMain::*member) {
    Field f{name, 1,
            [member](FrmMain& frm, const Index& i) { return valueText((frm.*member)(i[0])); },
            {},
            [member](FrmMain& frm) {
                const auto& a = frm.*member;
                return a.allocated() ? range(a.LBound(), a.UBound()) : std::string("unallocated");
            }};
    if constexpr (Settable<T>)
        f.set = [member](FrmMain& frm, const Index& i, const Token& t) { assign((frm.*member)(i[0]), t); };
    return f;
}

template <class T> Field field(const char* name, vb::Array3<T> FrmMain::*member) {
    return {name, 3,
            [member](FrmMain& frm, const Index& i) { return valueText((frm.*member)(i[0], i[1], i[2])); },
            [member](FrmMain& frm, const Index& i, const Token& t) {
                assign((frm.*member)(i[0], i[1], i[2]), t);
            },
            [member](FrmMain& frm) {
                const auto& a = frm.*member;
                return range(0, a.UBound(1)) + "," + range(0, a.UBound(2)) + "," + range(0, a.UBound(3));
            }};
}

#define FIELD(name) field(#name, &FrmMain::name)

} // namespace

const std::vector<Field>& fields() {
    static const std::vector<Field> table = {
        // Skin and files
        FIELD(Skin_Grid),
        FIELD(Undo_Grid),
        FIELD(Skin_Width),
        FIELD(Skin_Height),
        FIELD(Skin_Cols),
        FIELD(Skin_Rows),
        FIELD(PCX_Header),
        FIELD(File_Name),
        FIELD(Skin_Path),
        FIELD(Pal_Path),
        FIELD(Pal_Answer),
        FIELD(Image_Missing),
        FIELD(Save_As_Flag),
        // Picture and view
        FIELD(Pixel_Width),
        FIELD(Pixel_Height),
        FIELD(Scale_X),
        FIELD(Scale_Y),
        FIELD(Zoom_Factor),
        FIELD(Pan_Step),
        // Tools and colour
        FIELD(Tool_Mode),
        FIELD(Filter_Mode),
        FIELD(Pal_Table),
        FIELD(Cur_Color),
        FIELD(Cur_R),
        FIELD(Cur_G),
        FIELD(Cur_B),
        FIELD(Paint_Color),
        FIELD(Check_Color),
        FIELD(Color_Index),
        FIELD(Palette_Mode),
        FIELD(Mask_Color),
        FIELD(Tint_Value),
        FIELD(Wire_Color),
        FIELD(Brush_Size),
        FIELD(Brush_Radius),
        FIELD(Band_Old_X),
        FIELD(Band_Old_Y),
        FIELD(Text_X),
        FIELD(Text_Y),
        FIELD(Text_Pixels),
        FIELD(Cur_X),
        FIELD(Cur_Y),
        FIELD(Start_X),
        FIELD(Start_Y),
        FIELD(Band_X),
        FIELD(Band_Y),
        FIELD(Drag_Active),
        FIELD(Brush_X),
        FIELD(Brush_Y),
        FIELD(Pan_X),
        FIELD(Pan_Y),
        FIELD(Work_Buf),
        FIELD(Fill_Rect),
        FIELD(Gradient_On),
        FIELD(Gradient_Dark),
        FIELD(Paint_Shade),
        FIELD(Pick_Colored),
        FIELD(Pick_X),
        FIELD(Pick_Y),
        // Palette and colour matching
        FIELD(Pal_File_Len),
        FIELD(Near_Color),
        FIELD(Near_Distance),
        // Colour picking
        FIELD(Pal_X),
        FIELD(Pal_Y),
        FIELD(Next_Color_1),
        FIELD(Next_Color_2),
        FIELD(Prior_Color_1),
        FIELD(Prior_Color_2),
        FIELD(Mask_State),
        // Model
        FIELD(Wire_Loaded),
        FIELD(Wire_Shown),
        FIELD(Model_Path),
        FIELD(Tri_Table),
        FIELD(UV_Table),
        FIELD(MD2_Ident),
        FIELD(MD2_Skin_Width),
        FIELD(MD2_Skin_Height),
        FIELD(MD2_Num_St),
        FIELD(MD2_Num_Tris),
        FIELD(MD2_Ofs_Skins),
        FIELD(MD2_Ofs_St),
        FIELD(MD2_Ofs_Tris),
        // Mask and colour replace
        FIELD(Mask_List),
        FIELD(Mask_Count),
        FIELD(Mask_Pos),
        FIELD(Mask_Scan_X),
        FIELD(Mask_Scan_Y),
        FIELD(Mask_Pixel),
        FIELD(Mask_Row_Pixel),
        // Command surface
        FIELD(Drag_Offset_X),
        FIELD(Drag_Offset_Y),
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
    for (std::size_t k = 0; k < i.size(); ++k) out += (k ? "," : "") + std::to_string(i[k]);
    return out + ")";
}

} // namespace tavrin::cli
