// Numbers typed into question sets and fields: the leading number of a
// text, and whole numbers rounded the way the game always rounded them.
#pragma once

#include <QString>

#include <optional>

// The number at the start of the text (after blanks): digits with an
// optional sign and decimal point; 0 when there is none.
double LeadingNumber(const QString &text);

// The whole text as a number, or nothing when it is not one.
std::optional<double> WholeTextNumber(const QString &text);

// Rounds to the nearest whole number, halves to the even neighbour.
long long RoundHalfEven(double value);
