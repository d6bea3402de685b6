#ifndef QRL_MODEL_LAYERSTACK_H
#define QRL_MODEL_LAYERSTACK_H

#include "lib/utils/HashFactor.h"
#include "model/Layer.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

/// The conductive layers in the order of the board, top to bottom, ahead of them the bond wire layers where there are
/// any. Doesn't own them.
///
/// Answers what a walk from the front would, by indexes: numbers need not be unique. A layer's number and type must not
/// change while it is in the stack, but ahead of a `Replace`.
class LayerStack {
public:
    using Iterator = std::vector<Layer*>::const_iterator;

    bool IsEmpty() const { return m_Layers.empty(); }
    size_t GetSize() const { return m_Layers.size(); }
    Layer* operator[](size_t index) const { return m_Layers[index]; }
    Iterator begin() const { return m_Layers.begin(); }
    Iterator end() const { return m_Layers.end(); }

    /// The first layer of that number; null when there is none.
    Layer* Find(int32_t number) const;
    /// The first place at which the layer stands, counted from 0; -1 when it isn't in the stack.
    int GetPosition(const Layer* layer) const;
    /// The layer as far from the one end as `layer` is from the other. A layer that isn't in the stack comes back.
    Layer* GetMirrored(Layer* layer) const;
    /// The first and the last layer that isn't a bond wire layer; null when there is none.
    Layer* GetTop() const { return m_Top; }
    Layer* GetBottom() const { return m_Bottom; }
    /// Replaces `out` by the layers and returns their number.
    int CopyTo(std::vector<Layer*>& out) const;

    void Append(Layer* layer);
    /// Takes the layers as they are now in place of all that were there.
    void Replace(const std::vector<Layer*>& layers);

private:
    std::vector<Layer*> m_Layers;
    std::unordered_map<int32_t, Layer*, base::NumberHash> m_FirstByNumber;
    std::unordered_map<const Layer*, int> m_Positions;
    Layer* m_Top = nullptr;
    Layer* m_Bottom = nullptr;
};

#endif
