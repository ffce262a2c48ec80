#pragma once

#include <QtTest>

/// The columns of a data function: columns<QString, int>("text", "count").
template <typename... Types, typename... Names>
void columns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/// One row of it; a plain literal becomes a QString.
template <typename... Values>
void row(const char *name, const Values &...values)
{
    (void)(QTest::newRow(name) << ... << values);
}
