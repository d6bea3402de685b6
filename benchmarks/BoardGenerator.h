#ifndef QRL_BENCHMARKS_BOARDGENERATOR_H
#define QRL_BENCHMARKS_BOARDGENERATOR_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// Writes boards of any size that look like what the design system exports: components of real kinds on a grid, routed
/// nets with necked, curved and rounded traces, vias, filled shapes and planes with voids. The same settings give the
/// same bytes on every machine. Streams its text, and so needs the same little memory for a board of any size.
class BoardGenerator {
public:
    struct Settings {
        double m_Megabytes = 1.0; ///< size of the board file, met within some percent
        uint64_t m_Seed = 1;
        size_t m_LinesPerNet = 25; ///< 1 gives every line a net of its own
    };
    /// Takes the next piece of text.
    using Sink = std::function<void(std::string_view)>;

    explicit BoardGenerator(const Settings& settings);

    void WriteBoardFile(const Sink& sink);
    void WriteFootprintFile(const Sink& sink);
    void WriteSideFile(const Sink& sink);

    size_t GetComponentCount() const { return m_Components; }
    size_t GetNetCount() const { return m_Nets; }
    size_t GetLineCount() const { return m_Lines; }
    size_t GetViaCount() const { return m_Vias; }
    size_t GetSurfaceCount() const { return m_Surfaces; }

private:
    /// Where a component, a pin or a line starts, in the file's units of 1e-5 mm.
    struct Place {
        int64_t m_X;
        int64_t m_Y;
    };
    struct Kind;

    static const Kind& GetKind(size_t component);
    Place GetPlace(size_t component) const;
    size_t GetNetOfPin(size_t component, size_t pin) const;
    /// A number from 0 up to, but excluding, `limit`, which depends on nothing but the seed and the two others.
    uint64_t Random(uint64_t limit, uint64_t of, uint64_t which) const;

    void WriteHeader();
    void WriteTechnology();
    void WriteComponents();
    void WriteComponent(size_t component);
    void WriteNets();
    void WriteLayout();
    void WriteLine(size_t line);
    void WriteArc(Place begin, Place end, int64_t width);
    void WriteSurface(size_t surface);
    void WritePlane();
    void WriteVia(size_t via);
    Place GetViaPlace(size_t via) const;

    void Put(std::string_view text);
    void Put(int64_t number);
    template <class First, class Second, class... More>
    void Put(const First& first, const Second& second, const More&... more) {
        Put(first);
        Put(second);
        (Put(more), ...);
    }
    void PutPoint(Place place);
    void PutNet(size_t net);
    void Start(const Sink& sink);
    void Flush();

    Settings m_Settings;
    size_t m_Components;
    size_t m_Nets;
    size_t m_Lines;
    size_t m_Vias;
    size_t m_Surfaces;
    const Sink* m_Sink = nullptr;
    std::string m_Text;
};

#endif
