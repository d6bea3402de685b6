#include "model/LayerStack.h"

Layer* LayerStack::Find(int32_t number) const {
    const auto found = m_FirstByNumber.find(number);
    return found == m_FirstByNumber.end() ? nullptr : found->second;
}

int LayerStack::GetPosition(const Layer* layer) const {
    const auto found = m_Positions.find(layer);
    return found == m_Positions.end() ? -1 : found->second;
}

Layer* LayerStack::GetMirrored(Layer* layer) const {
    const int position = GetPosition(layer);
    return position < 0 ? layer : m_Layers[m_Layers.size() - static_cast<size_t>(position) - 1];
}

int LayerStack::CopyTo(std::vector<Layer*>& out) const {
    out = m_Layers;
    return static_cast<int>(out.size());
}

void LayerStack::Append(Layer* layer) {
    m_FirstByNumber.try_emplace(layer->number, layer);
    m_Positions.try_emplace(layer, static_cast<int>(m_Layers.size()));
    m_Layers.push_back(layer);
    if (layer->type >= Layer::k_Bondwire)
        return;
    if (m_Top == nullptr)
        m_Top = layer;
    m_Bottom = layer;
}

void LayerStack::Replace(const std::vector<Layer*>& layers) {
    *this = LayerStack();
    for (Layer* layer : layers)
        Append(layer);
}
