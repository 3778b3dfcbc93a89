#pragma once
// Times of one day: prayer name → instant, for the six names the engine produces.
#include <QAnyStringView>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

namespace tarvanel {

// The five prayers that lock, in order.
inline const QStringList& prayerNames() {
    static const QStringList names{QStringLiteral("Fajr"), QStringLiteral("Dhuhr"),
                                   QStringLiteral("Asr"), QStringLiteral("Maghrib"),
                                   QStringLiteral("Isha")};
    return names;
}

// The six display rows, in order.
inline const QStringList& dayRowNames() {
    static const QStringList names{QStringLiteral("Fajr"),    QStringLiteral("Sunrise"),
                                   QStringLiteral("Dhuhr"),   QStringLiteral("Asr"),
                                   QStringLiteral("Maghrib"), QStringLiteral("Isha")};
    return names;
}

class DayTimes {
public:
    static constexpr int Count = 6;

    // Index in dayRowNames(), or -1 for any other name.
    static int indexOf(QAnyStringView name) {
        const QStringList& names = dayRowNames();
        for (int i = 0; i < Count; ++i)
            if (QAnyStringView::equal(names[i], name)) return i;
        return -1;
    }

    std::optional<QDateTime> value(QAnyStringView name) const {
        const int i = indexOf(name);
        return i < 0 ? std::nullopt : slots_[size_t(i)];
    }
    bool contains(QAnyStringView name) const { return value(name).has_value(); }
    void insert(QAnyStringView name, const QDateTime& instant) {
        const int i = indexOf(name);
        if (i >= 0) slots_[size_t(i)] = instant;
    }
    void remove(QAnyStringView name) {
        const int i = indexOf(name);
        if (i >= 0) slots_[size_t(i)].reset();
    }
    bool isEmpty() const {
        for (const auto& s : slots_)
            if (s) return false;
        return true;
    }
    const std::optional<QDateTime>& at(int index) const { return slots_[size_t(index)]; }
    bool operator==(const DayTimes&) const = default;

private:
    std::array<std::optional<QDateTime>, Count> slots_{};
};

} // namespace tarvanel
