#include "Platform/SwiftUI/Views/GeometryReader.hpp"

#include "Platform/SwiftUI/Layout/FillingSize.hpp"
#include "Platform/SwiftUI/Layout/SafeArea.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

namespace {

class GeometryReaderNode final : public Node {
public:
    void adopt(GeometryReader&& reader, UpdatePass& pass) {
        m_content = std::move(reader.content);
        m_isDescribed = reader.isDescribed;
        if (isNew()) setDependsOnPosition();
        // With the size of the last layout. If the next layout changes it, the content is made again.
        else if (m_isSized)
            build(pass);
    }

protected:
    std::string_view semanticType() const override { return m_isDescribed ? "GeometryReader" : std::string_view(); }

    geometry::Size measure(const geometry::ProposedSize& proposal) override { return fillingSize(proposal); }

    LengthRange lengthRange(Axis, std::optional<double>) override { return {0, geometry::infinity}; }

    void layOut(const geometry::ProposedSize&, geometry::Size size) override {
        const geometry::EdgeInsets insets = touchedSafeArea(*this);
        if (!m_isSized || m_proxy.size != size || m_proxy.safeAreaInsets != insets) {
            m_isSized = true;
            m_proxy = {size, insets};
            const ElementArena::Build scope;
            UpdatePass pass{host(), &environment(), host().layoutAnimation(), host().now_s()};
            build(pass);
        }
        if (onlyChild() && !onlyChild()->isAbsent()) placeChild(*onlyChild(), {}, size);
    }

private:
    void build(UpdatePass& pass) { updateChild(0, m_content ? m_content(m_proxy) : View{}, pass); }

    Callback<View(const GeometryProxy&)> m_content;
    GeometryProxy m_proxy;
    bool m_isDescribed = true;
    bool m_isSized = false;
};

} // namespace

Element* GeometryReader::makeElement() && { return newElement<GeometryReaderNode>(std::move(*this)); }

} // namespace proupsells::swiftui
