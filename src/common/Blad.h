// The one family of failures that nobody expected: what was being done, to what, and why it failed.
#pragma once
#include "common/Przestrzenie.h"
#include <exception>
#include <QString>

namespace tornel::common {

/// A failure of one action. The outermost handler rolls the action back and shows `komunikat()`.
class Blad : public std::exception {
public:
    /// `komunikat`: a whole Polish sentence for the clerk: what was being done, to what, and the cause.
    explicit Blad(QString komunikat) : komunikat_(std::move(komunikat)), utf8_(komunikat_.toUtf8()) {}
    [[nodiscard]] const QString& komunikat() const { return komunikat_; }
    [[nodiscard]] const char* what() const noexcept override { return utf8_.constData(); }

private:
    QString komunikat_;
    QByteArray utf8_;
};

/// An amount or number left the range that its type or column can hold.
class Przepelnienie : public Blad {
public:
    using Blad::Blad;
};

/// The database file cannot be opened, read or written.
class BladBazy : public Blad {
public:
    using Blad::Blad;
};

/// A stored value is not of its column's type. The file can be read otherwise: the failure is that of whoever
/// the row belongs to.
class UszkodzonaWartosc : public Blad {
public:
    using Blad::Blad;
};

/// A stored row is no longer the one that was read; neither version is lost.
class Konflikt : public BladBazy {
public:
    using BladBazy::BladBazy;
};

/// The user's side ended the action (no answer to a question). Not a `Blad`: a batch must not go on past it.
class Przerwanie : public std::exception {
public:
    explicit Przerwanie(QString powod) : powod_(std::move(powod)), utf8_(powod_.toUtf8()) {}
    [[nodiscard]] const QString& powod() const { return powod_; }
    [[nodiscard]] const char* what() const noexcept override { return utf8_.constData(); }

private:
    QString powod_;
    QByteArray utf8_;
};

} // namespace tornel::common
