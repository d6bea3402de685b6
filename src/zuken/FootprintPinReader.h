#ifndef QRL_ZUKEN_FOOTPRINTPINREADER_H
#define QRL_ZUKEN_FOOTPRINTPINREADER_H

#include "model/NameIndex_T.h"
#include "model/UsedNames.h"
#include "model/ZukenPCBParser.h"

#include <vector>

/// Makes the pins of one footprint, and the pads and padstacks that only they use.
///
/// A pin of the file is a list of padstacks, pads and pen strokes, each of which becomes a pin of the model. The first
/// of these bears the name of the pin in the file if that is still free, the others get names made from it and are
/// siblings of the first.
class ZukenPCBParser::FootprintPinReader {
public:
    explicit FootprintPinReader(ZukenPCBParser& parser) : m_Parser(parser) {}

    /// Reads the next pin of the footprint. One without a layout makes no pin.
    void ReadPin(io::CBlock_func& pin);
    /// All pins so far, in the order in which they were made.
    const std::vector<FootprintPin*>& GetPins() const { return m_Pins; }

private:
    /// What holds for the one pin of the file that is being read. Its lists are read in order, and each can rest on
    /// what the ones before it left here.
    struct Source {
        AString m_Name;
        geom::Point m_Location;
        AString m_PadstackName; ///< the last one that was named or generated
        AString m_LayerName;    ///< of the pads and strokes that follow
        double m_Angle = 0.0;   ///< degrees
    };

    void ReadItem(io::CBlock_func& item);
    void ReadPadstackItem(const io::CBlock_func& item);
    void ReadPadItem(io::CBlock_func& item);
    void ReadLineItem(const io::CBlock_func& item);
    void MakePinOfPad(const AString& padName, geom::Point location);
    void MakePin(Padstack* padstack, geom::Point location);

    ZukenPCBParser& m_Parser;
    Source m_Source;
    std::vector<FootprintPin*> m_Pins;
    UsedNames m_UsedNames;
    NameIndex_T<FootprintPin*> m_FirstByName;
};

#endif
