#include "Collection.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    const int count = arguments.value(2).toInt();
    if (arguments.size() < 3 || arguments.size() > 4 || count < 1) {
        std::fputs("usage: make-collection DIR COUNT [SEED]\n", stderr);
        return 2;
    }
    try {
        Collection(arguments.at(1), arguments.value(3, QStringLiteral("1")).toULongLong())
            .write(count);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "make-collection: %s\n", error.what());
        return 1;
    }
    return 0;
}
