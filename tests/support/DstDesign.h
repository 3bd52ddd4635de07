#pragma once

#include <cstdlib>
#include <QByteArray>
#include <QFile>
#include <QString>

/** Makes small designs of the DST format for tests. Distances in tenths of a millimetre. */
class DstDesign
{
public:
    explicit DstDesign(const QByteArray &name = QByteArrayLiteral("Rose"))
        : m_header("LA:" + name + "\r")
    {
    }

    DstDesign &thread(const QByteArray &color, const QByteArray &name)
    {
        m_header += "TC:" + color + ',' + name + ",1\r";
        return *this;
    }

    /** Each displacement from -121 to 121. */
    DstDesign &stitch(int dx, int dy) { return record(dx, dy, 0x03); }
    DstDesign &colorChange() { return record(0, 0, '\xC3'); }
    DstDesign &end() { return record(0, 0, '\xF3'); }

    /** Bytes of the whole file. */
    QByteArray bytes() const { return m_header.leftJustified(512, ' ', true) + m_records; }

    bool writeTo(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes()) == bytes().size();
    }

    /** A square of the given side in two colours, 8 records long. */
    static DstDesign square(const QByteArray &name = QByteArrayLiteral("Rose"), int side = 100)
    {
        DstDesign design(name);
        design.thread("#ff0000", "Red").thread("#00ff00", "Green");
        design.stitch(side, 0).stitch(0, side).colorChange().stitch(-side, 0).stitch(0, -side);
        design.stitch(side, side).stitch(-side, -side).end();
        return design;
    }

private:
    DstDesign &record(int dx, int dy, char command)
    {
        struct Weight
        {
            int value, byte, plusX, minusX, plusY, minusY;
        };
        static constexpr Weight weights[] = {
            {81, 2, 2, 3, 4, 5}, {27, 1, 2, 3, 4, 5}, {9, 0, 2, 3, 4, 5},
            {3, 1, 0, 1, 6, 7},  {1, 0, 0, 1, 6, 7},
        };
        char bytes[3] = {0, 0, command};
        // Balanced ternary: what is left after a weight fits into the lighter ones.
        const auto take = [](int &rest, int weight) {
            if (std::abs(rest) * 2 <= weight)
                return 0;
            const int sign = rest > 0 ? 1 : -1;
            rest -= sign * weight;
            return sign;
        };
        for (const Weight &weight : weights) {
            char &byte = bytes[weight.byte];
            if (const int x = take(dx, weight.value))
                byte = static_cast<char>(byte | 1 << (x > 0 ? weight.plusX : weight.minusX));
            if (const int y = take(dy, weight.value))
                byte = static_cast<char>(byte | 1 << (y > 0 ? weight.plusY : weight.minusY));
        }
        m_records.append(bytes, 3);
        return *this;
    }

    QByteArray m_header;
    QByteArray m_records;
};
