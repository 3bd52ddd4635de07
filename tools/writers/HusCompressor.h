#pragma once

#include "writers/HuffmanCode.h"
#include <QByteArray>
#include <QVector>

/** The compression of the streams in a HUS file: matches in a window of 1024 bytes and static
    Huffman codes for each block. */
namespace HusCompressor {

/** The symbol that closes a stream. */
constexpr int EndSymbol = 510;

/** A literal (below 256), a match (253 + its length) or the end. */
struct Token
{
    int symbol;
    /** Of a match: how far back its source begins, 1 for the byte just before. */
    int distance = 0;
};

/** How a stream is put together; whatever is chosen, it holds the same bytes. */
struct Options
{
    /** At most 65536. */
    int tokensPerBlock = 32768;
    DesignWriters::CodeShape mainShape = DesignWriters::CodeShape::Huffman;
    /** That of the distances and of the lengths of the main code. */
    DesignWriters::CodeShape smallShape = DesignWriters::CodeShape::Huffman;
};

/** The tokens as a stream; they end with the end symbol. */
QByteArray encode(const QVector<Token> &tokens, const Options &options = {});

/** The bytes as a stream, with the longest matches that there are. */
QByteArray compress(const QByteArray &bytes, const Options &options = {});

} // namespace HusCompressor
