#include "zuken/ListValues.h"

io::CBlock_func GetChild_G(const io::CBlock_func& list, const char* name) {
    io::CBlock_func child(name);
    list >> child;
    return child;
}

bool FindChild_G(const io::CBlock_func& list, io::CBlock_func& query) {
    bool isFound = false;
    list >> query >> io::Query_ok(isFound);
    return isFound;
}

double GetRealOf_G(const io::CBlock_func& list, const char* name) {
    double value = 0.0;
    GetChild_G(list, name) >> value;
    return value;
}

AString GetTextOf_G(const io::CBlock_func& list, const char* name) {
    AString text;
    GetChild_G(list, name) >> text;
    return text;
}

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

geom::Point ReadPoint_G(io::CBlock_func& list, double scale) {
    double x = 0.0;
    double y = 0.0;
    list >> x >> y;
    return {x * scale, y * scale};
}

geom::Point GetPointOf_G(const io::CBlock_func& list, double scale) {
    io::CBlock_func pt = GetChild_G(list, "pt");
    return ReadPoint_G(pt, scale);
}
