#include "writers/HuffmanCode.h"

#include "writers/BitSink.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <queue>
#include <utility>
#include <vector>

namespace DesignWriters {

namespace {

constexpr int LongestCode = 16;

/** The depth of each symbol in a Huffman tree; at least two symbols occur. */
QVector<int> treeDepths(const QVector<int> &frequencies)
{
    using Node = std::pair<int, int>; // weight, number
    std::priority_queue<Node, std::vector<Node>, std::greater<Node>> queue;
    const int count = frequencies.size();
    for (int symbol = 0; symbol < count; ++symbol) {
        if (frequencies[symbol] > 0)
            queue.emplace(frequencies[symbol], symbol);
    }
    QVector<int> parents(count, -1);
    while (queue.size() > 1) {
        const Node a = queue.top();
        queue.pop();
        const Node b = queue.top();
        queue.pop();
        const int parent = parents.size();
        parents.append(-1);
        parents[a.second] = parent;
        parents[b.second] = parent;
        queue.emplace(a.first + b.first, parent);
    }
    QVector<int> depths(parents.size(), 0);
    for (int node = parents.size() - 2; node >= 0; --node)
        depths[node] = parents[node] < 0 ? 0 : depths[parents[node]] + 1;
    depths.resize(count);
    return depths;
}

/** Depths of at most LongestCode: rare symbols are made more frequent until the tree is flat. */
QVector<int> limitedDepths(QVector<int> frequencies)
{
    for (;;) {
        const QVector<int> depths = treeDepths(frequencies);
        if (*std::max_element(depths.begin(), depths.end()) <= LongestCode)
            return depths;
        for (int &frequency : frequencies)
            frequency = (frequency + 1) / 2;
    }
}

QVector<int> combDepths(const QVector<int> &frequencies, int symbolCount)
{
    QVector<int> symbols(frequencies.size());
    std::iota(symbols.begin(), symbols.end(), 0);
    std::stable_sort(symbols.begin(), symbols.end(),
                     [&](int a, int b) { return frequencies[a] > frequencies[b]; });
    QVector<int> depths(frequencies.size(), 0);
    for (int i = 0; i < symbolCount; ++i)
        depths[symbols[i]] = std::min(i + 1, symbolCount - 1);
    return depths;
}

} // namespace

HuffmanCode::HuffmanCode(const QVector<int> &frequencies, CodeShape shape)
    : m_lengths(frequencies.size(), 0), m_codes(frequencies.size(), 0), m_onlySymbol(-1)
{
    const auto occurs = [](int frequency) { return frequency > 0; };
    const auto first = std::find_if(frequencies.begin(), frequencies.end(), occurs);
    const int symbolCount = int(std::count_if(frequencies.begin(), frequencies.end(), occurs));
    if (symbolCount < 2) {
        m_onlySymbol = first == frequencies.end() ? 0 : int(first - frequencies.begin());
        return;
    }
    const bool isComb = shape == CodeShape::Comb && symbolCount <= LongestCode + 1;
    m_lengths = isComb ? combDepths(frequencies, symbolCount) : limitedDepths(frequencies);
    unsigned int code = 0;
    for (int length = 1; length <= LongestCode; ++length) {
        for (int symbol = 0; symbol < m_lengths.size(); ++symbol) {
            if (m_lengths[symbol] == length)
                m_codes[symbol] = code++;
        }
        code <<= 1;
    }
}

void HuffmanCode::put(BitSink &sink, int symbol) const
{
    sink.put(m_codes[symbol], m_lengths[symbol]);
}

} // namespace DesignWriters
