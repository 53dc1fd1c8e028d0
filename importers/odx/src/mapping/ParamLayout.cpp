#include "mapping/ParamLayout.h"

#include <algorithm>

namespace OdxImport {

namespace {

struct Span {
    std::size_t param = 0;
    std::uint64_t start = 0; ///< in bits; where it is unknown, that of the one before
    std::uint64_t end = 0;   ///< where it is known
    std::uint64_t said = 0;  ///< the start, in whichever order the bytes of a group are
    std::uint32_t bit = 0;
    std::uint64_t bits = 0; ///< 0 where they are unknown
    bool hasStart = false;
    bool hasEnd = false;
    Placement::Order order = Placement::AnyOrder;

    bool IsOverBytes() const { return start / 8 != (end - 1) / 8; }
};

std::uint64_t BytesUpTo(std::uint64_t bit) {
    return (bit + 7) / 8;
}

void Sort(std::vector<Span>& spans) {
    std::sort(spans.begin(), spans.end(),
              [](const Span& a, const Span& b) { return a.start != b.start ? a.start < b.start : a.param < b.param; });
}

std::vector<Span> Sorted(const std::vector<Placement>& placements) {
    std::vector<Span> spans;
    spans.reserve(placements.size());
    const std::vector<std::optional<std::uint64_t>> starts = StartsOf(placements);
    for (const Placement& at : placements) {
        Span span;
        span.param = spans.size();
        const auto& start = starts[span.param];
        span.hasStart = start.has_value();
        span.start = start.value_or(spans.empty() ? 0 : spans.back().start);
        span.hasEnd = span.hasStart && at.bits.value_or(0) != 0;
        span.bit = at.bit;
        span.bits = at.bits.value_or(0);
        span.end = span.start + span.bits;
        span.said = span.start;
        span.order = at.order;
        spans.push_back(span);
    }
    Sort(spans);
    return spans;
}

bool IsHighByteFirst(const std::vector<Span>& group) {
    const auto isOverBytes = [](const Span& span) { return span.IsOverBytes(); };
    const auto isLowByteFirst = [](const Span& span) {
        return span.order == Placement::LowByteFirst && span.IsOverBytes();
    };
    return std::any_of(group.begin(), group.end(), isOverBytes) &&
           std::none_of(group.begin(), group.end(), isLowByteFirst);
}

/// Counts the bytes of the group from its last one.
void TurnRound(std::vector<Span>& group, std::uint64_t byte, std::uint64_t endByte) {
    for (Span& span : group) {
        span.start = (byte + endByte - BytesUpTo(span.end)) * 8 + span.start % 8;
        span.end = span.start + span.bits;
    }
    Sort(group);
}

LayoutItem GapOf(std::uint64_t bits) {
    LayoutItem item;
    item.kind = LayoutItem::Gap;
    item.bits = bits;
    return item;
}

class Arranger {
public:
    explicit Arranger(const std::vector<Placement>& placements) : m_spans(Sorted(placements)) {}

    std::vector<LayoutItem> Arrange(std::optional<std::uint64_t> totalBits) {
        for (std::size_t first = 0; first < m_spans.size();) {
            if (m_spans[first].hasEnd)
                first = AddShared(first);
            else
                AddOpen(m_spans[first++]);
        }
        if (totalBits)
            FillUpTo(*totalBits);
        return std::move(m_items);
    }

private:
    void FillUpTo(std::uint64_t bit) {
        if (m_cursor && *m_cursor < bit)
            m_items.push_back(GapOf(bit - *m_cursor));
    }

    /// Adds what has no known end, or no known start.
    void AddOpen(Span span) {
        LayoutItem item;
        item.param = span.param;
        if (span.hasStart) {
            FillUpTo(span.start);
            item.isOverlapping = m_cursor && *m_cursor > span.start;
            if (item.isOverlapping || !m_cursor)
                item.position = span.start;
        } else if (span.bits == 0 && span.bit != 0) {
            m_items.push_back(GapOf(span.bit));
        } else if (span.bit != 0 || span.bits % 8 != 0) { // it begins in a byte for itself
            span.start = span.bit;
            span.end = span.bit + span.bits;
            item = GroupOf({span}, 0, BytesUpTo(span.end));
            item.byte.reset();
        }
        m_items.push_back(std::move(item));
        m_cursor.reset();
    }

    /// Adds the span and all that share bytes with it; returns the first that does not.
    std::size_t AddShared(std::size_t first) {
        const std::uint64_t byte = m_spans[first].start / 8;
        std::uint64_t endByte = byte;
        bool isWholeBytes = true;
        std::size_t last = first;
        do {
            const Span& span = m_spans[last];
            endByte = std::max(endByte, BytesUpTo(span.end));
            isWholeBytes = isWholeBytes && span.start % 8 == 0 && span.end % 8 == 0;
            ++last;
        } while (last < m_spans.size() && m_spans[last].hasEnd && m_spans[last].start / 8 < endByte);

        FillUpTo(byte * 8);
        const std::size_t begin = m_items.size();
        std::vector<Span> members(m_spans.begin() + static_cast<std::ptrdiff_t>(first),
                                  m_spans.begin() + static_cast<std::ptrdiff_t>(last));
        if (isWholeBytes) {
            AddMembers(m_items, members, byte * 8);
        } else {
            if (IsHighByteFirst(members))
                TurnRound(members, byte, endByte);
            m_items.push_back(GroupOf(members, byte, endByte));
        }
        if (!m_cursor)
            m_items[begin].position = byte * 8;
        m_cursor = endByte * 8;
        return last;
    }

    static LayoutItem GroupOf(const std::vector<Span>& members, std::uint64_t byte, std::uint64_t endByte) {
        LayoutItem group;
        group.kind = LayoutItem::Group;
        group.byte = byte;
        const std::uint64_t filled = AddMembers(group.items, members, byte * 8);
        if (filled < endByte * 8)
            group.items.push_back(GapOf(endByte * 8 - filled));
        return group;
    }

    static std::uint64_t AddMembers(std::vector<LayoutItem>& items, const std::vector<Span>& spans,
                                    std::uint64_t cursor) {
        for (const Span& span : spans) {
            if (span.start > cursor)
                items.push_back(GapOf(span.start - cursor));
            LayoutItem item;
            item.param = span.param;
            item.isOverlapping = span.start < cursor;
            if (item.isOverlapping)
                item.position = span.said;
            items.push_back(item);
            cursor = std::max(cursor, span.end);
        }
        return cursor;
    }

    std::vector<Span> m_spans;
    std::vector<LayoutItem> m_items;
    std::optional<std::uint64_t> m_cursor = 0; ///< absent behind a parameter of unknown length
};

} // namespace

std::vector<std::optional<std::uint64_t>> StartsOf(const std::vector<Placement>& placements) {
    std::vector<std::optional<std::uint64_t>> starts;
    starts.reserve(placements.size());
    std::optional<std::uint64_t> behind = 0; // the byte behind the parameter before
    for (const Placement& at : placements) {
        const auto byte = at.byte ? at.byte : behind;
        const auto start = byte ? std::optional(*byte * 8 + at.bit) : std::nullopt;
        behind = start && at.bits ? std::optional(BytesUpTo(*start + *at.bits)) : std::nullopt;
        starts.push_back(start);
    }
    return starts;
}

std::vector<LayoutItem> LayOut(const std::vector<Placement>& placements, std::optional<std::uint64_t> totalBits) {
    return Arranger(placements).Arrange(totalBits);
}

} // namespace OdxImport
