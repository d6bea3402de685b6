#ifndef QRL_TESTS_ZUKEN_BOARDSECTIONS_H
#define QRL_TESTS_ZUKEN_BOARDSECTIONS_H

#include "model/ZukenPCBParser.h"
#include "tests/BoardText.h"
#include "tests/GeometryFixtures.h"
#include "tests/zuken/LibraryText.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The sections of a board, as text.
struct BoardSections {
    int m_LayerCount = 2;
    std::string m_Components = "";
    std::string m_Nets = "";
    std::string m_Layout = ""; ///< the `layer` lists of the board's layout
};

/// A board file in millimetres with plain conductive layers that count from 1. The footprint layer TOP stands for the
/// first of them, BOT for the last.
inline std::string TextOf(const BoardSections& board) {
    std::string layers;
    for (int i = 1; i <= board.m_LayerCount; ++i)
        layers += "(layerNumber " + std::to_string(i) + " (type POSI))";
    return "(pcf board (header (unit MM)) (technologyContainer (technology tech (conductiveLayer " + layers +
           ") (layerMapping (map A (correspondence (footLayer TOP) (boardLayer (conductive 1)))"
           " (correspondence (footLayer BOT) (boardLayer (conductive " +
           std::to_string(board.m_LayerCount) + "))))))) (boardContainer (components " + board.m_Components +
           ") (nets " + board.m_Nets + ") (boardLayout (layout " + board.m_Layout + "))))";
}

/// A board that was read, and what its reading printed.
struct BoardResult {
    std::unique_ptr<ZukenPCBParser> m_Parser;
    std::string m_Output;
};

/// Reads a board with a library and without a side file.
inline BoardResult ReadBoard(const BoardSections& board, const LibraryText& library = {}) {
    BoardResult result;
    testing::internal::CaptureStdout();
    result.m_Parser = ParseBoard(TextOf(board), TextOf(library));
    result.m_Output = testing::internal::GetCapturedStdout();
    return result;
}

/// A parser of no files, for a reader that a test calls by itself. Lengths are as they stand in the text, and the
/// `center` of an arc counts its radius as 1.
inline std::unique_ptr<ZukenPCBParser> MakeParser() {
    return std::make_unique<ZukenPCBParser>(io::CBlock(), io::CBlock());
}

inline std::vector<Component*> ComponentsOf(const ZukenPCBParser& parser) {
    std::vector<Component*> components;
    parser.GetComponents(components);
    return components;
}

inline std::vector<std::string> NetNamesOf(const ZukenPCBParser& parser) {
    std::vector<Net*> nets;
    parser.GetNets(nets);
    std::vector<std::string> names;
    for (const Net* net : nets)
        names.push_back(net->name.QRL_ANSI());
    return names;
}

inline std::vector<std::string> PinRefsOf(const Net& net) {
    std::vector<std::string> texts;
    for (const AString& text : net.pinRefs)
        texts.push_back(text.QRL_ANSI());
    return texts;
}

inline std::vector<std::string> TextsOf(const std::vector<AString>& texts) {
    std::vector<std::string> narrow;
    for (const AString& text : texts)
        narrow.push_back(text.QRL_ANSI());
    return narrow;
}

/// The corners of an outline, from its first on.
inline std::vector<geom::Point> CornersOf(const geom::Polygon& polygon) {
    std::vector<geom::Point> corners;
    for (const geom::Arc& piece : polygon.GetArcs())
        corners.push_back(piece.GetStart());
    return corners;
}

inline std::vector<geom::Point> PlacesOf(const Trace& trace) {
    std::vector<geom::Point> places;
    for (const PathVertex& vertex : trace.vertices)
        places.emplace_back(vertex.x, vertex.y);
    return places;
}

/// The width at each vertex, which has the same at both of its sides.
inline std::vector<double> WidthsOf(const Trace& trace) {
    std::vector<double> widths;
    for (const PathVertex& vertex : trace.vertices) {
        EXPECT_EQ(vertex.startWidth, vertex.endWidth);
        widths.push_back(vertex.startWidth);
    }
    return widths;
}

inline std::vector<double> HeightsOf(const Trace& trace) {
    std::vector<double> heights;
    for (const PathVertex& vertex : trace.vertices)
        heights.push_back(vertex.height);
    return heights;
}

#endif
