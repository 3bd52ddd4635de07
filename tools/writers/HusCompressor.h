#pragma once

#include <QByteArray>

/** The compression of the streams in a HUS file: matches in a window of 1024 bytes and static
    Huffman codes for each block. */
namespace HusCompressor {

/** The compressed bytes, closed by the end code. */
QByteArray compress(const QByteArray &bytes);

} // namespace HusCompressor
