#include "TokenPass.h"

#include <QXmlStreamReader>

#include <benchmark/benchmark.h>

void tokenPass(const QString& text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
        reader.readNext();
    benchmark::DoNotOptimize(reader.hasError());
}
