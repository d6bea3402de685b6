#include "zuken/ListValues.h"

io::CBlock_func GetChild_G(const io::CBlock_func& list, const char* name) {
    const std::optional<io::TreeView> child = list.FindFunc(name);
    return child ? io::CBlock_func(*child) : io::CBlock_func(name);
}

bool FindChild_G(const io::CBlock_func& list, io::CBlock_func& query) {
    bool isFound = false;
    list >> query >> io::Query_ok(isFound);
    return isFound;
}

double GetRealOf_G(io::FuncView list, const char* name) {
    double value = 0.0;
    list.Find(name) >> value;
    return value;
}

AString GetTextOf_G(io::FuncView list, const char* name) { return AString(list.Find(name).GetText()); }

void ReadName_G(io::CBlock_func& list, AString& name) {
    bool isRead = false;
    list >> name >> io::Query_ok(isRead);
    if (isRead)
        return;
    int number = 0;
    list.ResetRead();
    list >> number >> io::Query_ok(isRead);
    if (isRead)
        name.Format(L"%d", number);
}

void ReadAnyText_G(const io::CBlock_func& list, AString& text) {
    if (list.begin() == list.end())
        return;
    const io::CBlock_ptr<io::CBlock_func_arg> first = list.Item(list.begin());
    if (first.Item() != nullptr)
        first->Query(text);
}

AString ReadPinName_G(io::CBlock_func& pin) {
    AString name;
    int number = 0;
    bool isNumber = false;
    pin >> number >> io::Query_ok(isNumber);
    if (isNumber)
        name.Format(L"%d", number);
    else
        ReadAnyText_G(pin, name);
    return name;
}

geom::Point ReadPoint_G(io::FuncView list, double scale) {
    double x = 0.0;
    double y = 0.0;
    list >> x >> y;
    return {x * scale, y * scale};
}

geom::Point GetPointOf_G(io::FuncView list, double scale) { return ReadPoint_G(list.Find("pt"), scale); }

io::FuncView GetSurfaceShape_G(io::FuncView refer) {
    const io::FuncView surface = refer.Find("surface");
    const io::FuncView shape = surface.Find("geometry").Find("surface");
    return shape ? shape : surface;
}
