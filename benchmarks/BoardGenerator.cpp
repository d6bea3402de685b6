#include "benchmarks/BoardGenerator.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <utility>
#include <vector>

/// A kind of component: its footprint, its padstack and its pins in two rows.
struct BoardGenerator::Kind {
    std::string_view m_Prefix;
    std::string_view m_Footprint;
    std::string_view m_Padstack;
    size_t m_Pins;
    int64_t m_Pitch;      ///< between the pins of a row
    int64_t m_RowSpacing; ///< between the two rows
};

namespace {

constexpr int64_t k_Grid = 800000;       ///< between two components: 8 mm
constexpr int64_t k_Centre = 1073741824; ///< 2^30, the length of a full direction to a centre
constexpr size_t k_ConductiveLayers = 4;
constexpr size_t k_PlaneLayer = 2;
constexpr std::array<int64_t, 4> k_Widths = {8000, 12000, 15000, 20000};

// What a megabyte of a real board holds.
constexpr double k_LinesPerMegabyte = 3200;
constexpr double k_ViasPerMegabyte = 800;
constexpr double k_SurfacesPerMegabyte = 80;
constexpr double k_ComponentsPerMegabyte = 32;

size_t Count(double perMegabyte, double megabytes) {
    return std::max<size_t>(1, static_cast<size_t>(perMegabyte * megabytes));
}

} // namespace

BoardGenerator::BoardGenerator(const Settings& settings)
    : m_Settings(settings), m_Components(Count(k_ComponentsPerMegabyte, settings.m_Megabytes)), m_Nets(0),
      m_Lines(Count(k_LinesPerMegabyte, settings.m_Megabytes)), m_Vias(Count(k_ViasPerMegabyte, settings.m_Megabytes)),
      m_Surfaces(Count(k_SurfacesPerMegabyte, settings.m_Megabytes)) {
    m_Nets = std::max<size_t>(1, m_Lines / std::max<size_t>(1, settings.m_LinesPerNet));
}

const BoardGenerator::Kind& BoardGenerator::GetKind(size_t component) {
    static constexpr std::array<Kind, 5> k_Kinds = {{
        {"R", "R0603", "LAND_80X90", 2, 0, 160000},
        {"C", "C0402", "LAND_50X55", 2, 0, 95000},
        {"U", "SOIC8", "SO_R155X60", 8, 127000, 540000},
        {"J", "HDR2X5", "TH_C170D100", 10, 254000, 254000},
        {"U", "QFP48", "QFP_OB150X28", 48, 25000, 600000},
    }};
    constexpr std::array<size_t, 10> k_Mix = {0, 1, 0, 1, 2, 0, 1, 3, 1, 4};
    return k_Kinds[k_Mix[component % k_Mix.size()]];
}

/// Scrambles its arguments as SplitMix64 does (Steele, Lea, Flood: Fast Splittable Pseudorandom Number Generators,
/// 2014).
uint64_t BoardGenerator::Random(uint64_t limit, uint64_t of, uint64_t which) const {
    uint64_t z = m_Settings.m_Seed + of * 0x9E3779B97F4A7C15ULL + which * 0xD1B54A32D192ED03ULL;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return (z ^ (z >> 31)) % limit;
}

BoardGenerator::Place BoardGenerator::GetPlace(size_t component) const {
    size_t columns = 1;
    while (columns * columns < m_Components)
        ++columns;
    return {
        static_cast<int64_t>(component % columns + 1) * k_Grid, static_cast<int64_t>(component / columns + 1) * k_Grid};
}

size_t BoardGenerator::GetNetOfPin(size_t component, size_t pin) const {
    return Random(m_Nets, component, 100 + pin) + 1;
}

void BoardGenerator::WriteBoardFile(const Sink& sink) {
    Start(sink);
    Put("; board generated, ", static_cast<int64_t>(m_Components), " components\r\n(pcf generated\r\n");
    WriteHeader();
    WriteTechnology();
    Put("(boardContainer\r\n");
    WriteComponents();
    WriteNets();
    WriteLayout();
    Put(")\r\n (parameter (grid 50000) (dates 10/08/12 2014-03-20-14:16:03))\r\n)\r\n");
    Flush();
}

void BoardGenerator::WriteHeader() {
    Put("(header\r\n    ; (ctime 2008-01-11-14:25:00)\r\n    ; (cuser \"someone\")\r\n"
        " (version 11.0) (unit DBUNIT) (originalCreator \"cad; export (full)\"))\r\n");
}

void BoardGenerator::WriteTechnology() {
    Put("(technologyContainer\r\n (technology tech_4L\r\n  (conductiveLayer\r\n");
    for (size_t i = 1; i <= k_ConductiveLayers; ++i)
        Put("   (layerNumber ", static_cast<int64_t>(i), " (type ", i == k_PlaneLayer ? "POSINEGA" : "POSI",
            ") (thickness 3500))\r\n");
    Put("  )\r\n  (layerMapping\r\n   (map A\r\n"
        "    (correspondence (footLayer PAD_A) (boardLayer (conductive 1)))\r\n"
        "    (correspondence (footLayer PAD_I) (boardLayer (conductive 2) (conductive 3)))\r\n"
        "    (correspondence (footLayer PAD_B) (boardLayer (conductive 4)))))))\r\n");
}

void BoardGenerator::WriteComponents() {
    Put("(components\r\n");
    for (size_t i = 0; i < m_Components; ++i)
        WriteComponent(i);
    Put(")\r\n");
}

void BoardGenerator::WriteComponent(size_t component) {
    const Kind& kind = GetKind(component);
    const auto number = static_cast<int64_t>(component + 1);
    const bool isBottom = Random(5, component, 1) == 0;
    Put("(component (reference ", kind.m_Prefix, number, ") (part ", kind.m_Footprint, "-", number, ") (footprint ",
        kind.m_Footprint, ") (placed YES) (placementSide ", isBottom ? "B" : "A", ") (location ");
    PutPoint(GetPlace(component));
    Put(") (angle ", static_cast<int64_t>(Random(4, component, 2) * 90), ")\r\n");
    for (size_t pin = 0; pin < kind.m_Pins; ++pin) {
        Put(" (pin ", static_cast<int64_t>(pin + 1), " (layout (layer (systemLayer (type PADSTACK)) (padstack ",
            kind.m_Padstack, " ");
        PutNet(GetNetOfPin(component, pin));
        Put("))))\r\n");
    }
    Put(")\r\n");
}

void BoardGenerator::WriteNets() {
    std::vector<std::vector<std::pair<size_t, size_t>>> pins(m_Nets + 1);
    for (size_t component = 0; component < m_Components; ++component)
        for (size_t pin = 0; pin < GetKind(component).m_Pins; ++pin)
            pins[GetNetOfPin(component, pin)].emplace_back(component, pin);
    Put("(nets\r\n");
    for (size_t net = 1; net <= m_Nets; ++net) {
        Put("(net N", static_cast<int64_t>(net));
        for (const auto& [component, pin] : pins[net])
            Put(" (comp ", GetKind(component).m_Prefix, static_cast<int64_t>(component + 1), " (pin ",
                static_cast<int64_t>(pin + 1), "))");
        Put(")\r\n");
    }
    Put(")\r\n");
}

void BoardGenerator::WriteLayout() {
    Put("(boardLayout (layout\r\n");
    for (size_t layer = 1; layer <= k_ConductiveLayers; ++layer) {
        Put("; layer ", static_cast<int64_t>(layer), "\r\n(layer (conductive ", static_cast<int64_t>(layer), ")\r\n");
        for (size_t line = layer - 1; line < m_Lines; line += k_ConductiveLayers)
            WriteLine(line);
        for (size_t surface = layer - 1; surface < m_Surfaces; surface += k_ConductiveLayers)
            WriteSurface(surface);
        if (layer == k_PlaneLayer)
            WritePlane();
        Put(")\r\n");
    }
    Put("(layer (systemLayer (type PADSTACK))\r\n");
    for (size_t via = 0; via < m_Vias; ++via)
        WriteVia(via);
    Put(")\r\n))\r\n");
}

/// Two to nine points from a pin on, five of a hundred pieces curved, three of a hundred corners rounded; one line in
/// eight is necked.
void BoardGenerator::WriteLine(size_t line) {
    const size_t net = line % m_Nets + 1;
    Place at = GetPlace(Random(m_Components, line, 10));
    const uint64_t points = 2 + Random(8, line, 11);
    const bool isNecked = Random(8, line, 12) == 0;
    int64_t width = k_Widths[Random(k_Widths.size(), line, 13)];
    Put("(line ");
    PutNet(net);
    Put(" (geometry (line (penShape CIRCLE) (vertex (pt ", at.m_X, " ", at.m_Y, " (width ", width, "))");
    for (uint64_t i = 1; i < points; ++i) {
        const uint64_t salt = 20 + i * 8;
        const Place next = {at.m_X + static_cast<int64_t>(Random(600001, line, salt)) - 300000,
            at.m_Y + static_cast<int64_t>(Random(600001, line, salt + 1)) - 300000};
        if (isNecked && i == points / 2)
            width = k_Widths[Random(k_Widths.size(), line, salt + 2)];
        if (Random(20, line, salt + 3) == 0 && next.m_X != at.m_X) {
            WriteArc(at, next, width);
        } else {
            Put(" (pt ", next.m_X, " ", next.m_Y);
            if (Random(33, line, salt + 4) == 0)
                Put(" (tarc (r 20000))");
            if (isNecked)
                Put(" (width ", width, ")");
            Put(")");
        }
        at = next;
    }
    Put("))))\r\n");
}

/// A half circle to the right of the way or to the left, whose centre lies in the middle of `begin` and an end beside
/// it.
void BoardGenerator::WriteArc(Place begin, Place end, int64_t width) {
    const int64_t radius = std::max<int64_t>(1000, std::abs(end.m_X - begin.m_X) / 2);
    const bool goesRight = end.m_X > begin.m_X;
    const Place across = {begin.m_X + (goesRight ? 2 * radius : -2 * radius), begin.m_Y};
    Put(" (arc ", (begin.m_Y + end.m_Y) % 2 == 0 ? "CW" : "CCW", " (r ", radius, ") (begin (pt ", begin.m_X, " ",
        begin.m_Y, " (width ", width, "))) (center ", goesRight ? k_Centre : -k_Centre, " 0) (end (pt ", across.m_X,
        " ", across.m_Y, " (width ", width, "))))");
}

void BoardGenerator::WriteSurface(size_t surface) {
    const Place at = GetPlace(Random(m_Components, surface, 1000));
    const auto size = static_cast<int64_t>(200000 + Random(400000, surface, 1001));
    Put("(surface ");
    PutNet(Random(m_Nets, surface, 1002) + 1);
    Put(" (geometry (surface (fillWidth 10000) (outlineWidth 10000) (vertex");
    const std::array<Place, 4> corners = {{{0, 0}, {size, 0}, {size, size}, {0, size}}};
    for (const Place& corner : corners) {
        Put(" (pt ", at.m_X + corner.m_X, " ", at.m_Y + corner.m_Y);
        if (Random(4, surface, 1003) == 0)
            Put(" (tarc (r 20000))");
        Put(")");
    }
    Put(")\r\n");
    for (int64_t i = 1; i <= 3; ++i) {
        const Place hole = {at.m_X + i * size / 4, at.m_Y + size / 2};
        Put("  (openShape (outlineWidth 10000) (vertex (arc CCW (r 20000) (begin ");
        PutPoint({hole.m_X + 20000, hole.m_Y});
        Put(") (center ", -k_Centre, " 0) (end ");
        PutPoint({hole.m_X + 20000, hole.m_Y});
        Put("))))\r\n");
    }
    Put(")))\r\n");
}

/// One surface over the whole board, with a void around every via.
void BoardGenerator::WritePlane() {
    const Place last = GetPlace(m_Components - 1);
    const int64_t right = GetPlace(0).m_X * (static_cast<int64_t>(m_Components) + 2);
    Put("(meshplane ");
    PutNet(1);
    Put(" (geometry (meshplane (outlineWidth 10000) (vertex (pt 0 0) (pt ", right, " 0) (pt ", right, " ",
        last.m_Y + k_Grid, ") (pt 0 ", last.m_Y + k_Grid, "))\r\n");
    for (size_t via = 0; via < m_Vias; ++via) {
        const Place at = GetViaPlace(via);
        Put("  (openShape (outlineWidth 0) (vertex (arc CCW (r 35000) (begin ");
        PutPoint({at.m_X + 35000, at.m_Y});
        Put(") (center ", -k_Centre, " 0) (end ");
        PutPoint({at.m_X + 35000, at.m_Y});
        Put("))))\r\n");
    }
    Put(")))\r\n");
}

BoardGenerator::Place BoardGenerator::GetViaPlace(size_t via) const {
    const Place at = GetPlace(Random(m_Components, via, 2000));
    return {at.m_X + static_cast<int64_t>(Random(400000, via, 2001)),
        at.m_Y + static_cast<int64_t>(Random(400000, via, 2002))};
}

void BoardGenerator::WriteVia(size_t via) {
    Put("(padstack ", via % 3 == 0 ? "VIA20" : "VIA30", " ");
    PutNet(via % m_Nets + 1);
    Put(" ");
    PutPoint(GetViaPlace(via));
    Put(" (angle 0) (fromTo 1 ", static_cast<int64_t>(k_ConductiveLayers), "))\r\n");
}

void BoardGenerator::WriteFootprintFile(const Sink& sink) {
    Start(sink);
    Put("; footprint library, written by the board database export\r\n(ftf std_lib\r\n");
    WriteHeader();
    Put("(technologyContainer\r\n (technology std_tech\r\n  (footprintLayer\r\n"
        "   (layer SYMBOL_A (type SYMBOLMARK) (side A))\r\n"
        "   (layer PAD_A (type CONDUCTIVE) (side A))\r\n"
        "   (layer PAD_I (type CONDUCTIVE))\r\n"
        "   (layer PAD_B (type CONDUCTIVE) (side B)))))\r\n"
        "(footprintContainer\r\n(pads\r\n"
        "(pad R50X55 (geometry (rectangle (pt 0 0) (width 50000) (height 55000) (rAngle 0) (outlineWidth 0))))\r\n"
        "(pad R80X90 (geometry (rectangle (pt 0 0) (width 80000) (height 90000) (rAngle 0) (outlineWidth 0))))\r\n"
        "(pad R155X60 (geometry (rectangle (pt 0 0) (width 155000) (height 60000) (rAngle 0) (outlineWidth 0))))\r\n"
        "(pad OB150X28 (geometry (oblong (width 28000) (pt -61000 0) (pt 61000 0))))\r\n"
        "(pad C170 (geometry (circle 85000 (pt 0 0))))\r\n"
        "(pad C190 (geometry (circle 95000 (pt 0 0))))\r\n"
        "(pad C60 (geometry (circle 30000 (pt 0 0))))\r\n"
        "(pad T190 (geometry (roundThermal (out 95000) (in 85000) (nBridge 4) (BridgeWidth 30000) (BridgeAngle "
        "45)))))\r\n"
        "(padstacks\r\n"
        "(padstack LAND_50X55 (padSet (footLayer PAD_A) (connect (pad R50X55))))\r\n"
        "(padstack LAND_80X90 (padSet (footLayer PAD_A) (connect (pad R80X90))))\r\n"
        "(padstack SO_R155X60 (padSet (footLayer PAD_A) (connect (pad R155X60))))\r\n"
        "(padstack QFP_OB150X28 (padSet (footLayer PAD_A) (connect (pad OB150X28))))\r\n");
    for (const std::string_view name : {"TH_C170D100", "VIA20", "VIA30"}) {
        const bool isVia = name.starts_with("VIA");
        Put("(padstack ", name, " (hole (geometry (circle ", isVia ? int64_t{15000} : int64_t{50000}, ")))");
        for (const std::string_view layer : {"PAD_A", "PAD_I", "PAD_B"})
            Put("\r\n  (padSet (footLayer ", layer, ") (connect (pad ", isVia ? "C60" : "C170",
                ")) (clearance (pad C190)) (thermal (pad T190)))");
        Put(")\r\n");
    }
    Put(")\r\n(footprints\r\n");
    for (const size_t component : {0U, 1U, 4U, 7U, 9U}) {
        const Kind& kind = GetKind(component);
        Put("(footprint ", kind.m_Footprint, " (polarity YES)\r\n (toeprint\r\n");
        const size_t perRow = kind.m_Pins / 2;
        for (size_t pin = 0; pin < kind.m_Pins; ++pin) {
            const auto column = static_cast<int64_t>(pin % perRow);
            const Place at = {pin < perRow ? -kind.m_RowSpacing / 2 : kind.m_RowSpacing / 2, column * kind.m_Pitch};
            Put("  (pin ", static_cast<int64_t>(pin + 1), " ");
            PutPoint(at);
            Put(" (layout (layer (fpadstack ");
            PutPoint(at);
            Put(" (angle 0) (padstackGroup (padstack ", kind.m_Padstack, "))))))\r\n");
        }
        Put("))\r\n");
    }
    Put("))\r\n)\r\n");
    Flush();
}

void BoardGenerator::WriteSideFile(const Sink& sink) {
    Start(sink);
    Put("# part list\r\nReference PartNumber Value DNP\r\n");
    for (size_t i = 0; i < m_Components; ++i)
        Put(GetKind(i).m_Prefix, static_cast<int64_t>(i + 1), " ", GetKind(i).m_Footprint, " 10k",
            Random(20, i, 3) == 0 ? " YES\r\n" : "\r\n");
    Flush();
}

void BoardGenerator::PutPoint(Place place) { Put("(pt ", place.m_X, " ", place.m_Y, ")"); }

void BoardGenerator::PutNet(size_t net) { Put("(net N", static_cast<int64_t>(net), ")"); }

void BoardGenerator::Put(std::string_view text) {
    constexpr size_t k_PieceSize = size_t{1} << 20;
    m_Text += text;
    if (m_Text.size() >= k_PieceSize)
        Flush();
}

void BoardGenerator::Put(int64_t number) {
    char digits[24];
    Put(std::string_view(digits, std::to_chars(digits, digits + sizeof digits, number).ptr));
}

void BoardGenerator::Start(const Sink& sink) {
    m_Sink = &sink;
    m_Text.clear();
}

void BoardGenerator::Flush() {
    (*m_Sink)(m_Text);
    m_Text.clear();
}
