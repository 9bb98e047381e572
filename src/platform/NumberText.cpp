#include "NumberText.h"

#include <QRegularExpression>

#include <cmath>

namespace {

// Digits, optionally signed, with at most one decimal point.
const QString kNumber = QStringLiteral("[+-]?(?:\\d+\\.?\\d*|\\.\\d+)");

} // namespace

double LeadingNumber(const QString &text)
{
    static const QRegularExpression leading(QStringLiteral("^[ \\t]*(") + kNumber + QStringLiteral(")"));
    const QRegularExpressionMatch m = leading.match(text);
    if (!m.hasMatch())
        return 0.0;
    const double value = m.captured(1).toDouble();
    return std::isfinite(value) ? value : 0.0;
}

std::optional<double> WholeTextNumber(const QString &text)
{
    static const QRegularExpression whole(QStringLiteral("^[ \\t]*(") + kNumber + QStringLiteral(")[ \\t]*$"));
    const QRegularExpressionMatch m = whole.match(text);
    if (!m.hasMatch())
        return std::nullopt;
    const double value = m.captured(1).toDouble();
    if (!std::isfinite(value))
        return std::nullopt;
    return value;
}

long long RoundHalfEven(double value)
{
    // Far beyond any count a question set holds; keeps the cast defined.
    constexpr double kLimit = 1e15;
    if (!(value < kLimit))
        return value > 0 || std::isnan(value) ? static_cast<long long>(kLimit) : -static_cast<long long>(kLimit);
    if (value < -kLimit)
        return -static_cast<long long>(kLimit);
    const double floor = std::floor(value);
    const double diff = value - floor;
    long long result = static_cast<long long>(floor);
    if (diff > 0.5 || (diff == 0.5 && (result % 2 != 0)))
        ++result;
    return result;
}
