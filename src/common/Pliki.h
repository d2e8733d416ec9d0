// The files that are read and written besides the database.
#pragma once
#include "common/Przestrzenie.h"
#include <memory>
#include <QByteArray>
#include <QString>

class QSaveFile;

namespace tornel::common {

/// The whole content. Throws `Blad` that names the file.
[[nodiscard]] QByteArray CzytajPlik(const QString& sciezka);
/// The same of a UTF-8 text, without a byte order mark. Throws `Blad` that names the file.
[[nodiscard]] QString CzytajTekst(const QString& sciezka);
/// Replaces the file at once or leaves it as it was. Throws `Blad` that names the file.
void ZapiszPlik(const QString& sciezka, const QByteArray& tresc);

/// A large file written piece by piece beside the one that it replaces. Without `zatwierdz` nothing changes.
class NowyPlik {
public:
    /// Throws `Blad` that names the file.
    explicit NowyPlik(const QString& sciezka);
    ~NowyPlik();
    NowyPlik(const NowyPlik&) = delete;
    NowyPlik& operator=(const NowyPlik&) = delete;

    /// Adds to the end. Throws `Blad` that names the file.
    void dopisz(const QByteArray& kawalek);
    /// Puts the file in its place at once. Throws `Blad` that names the file; the old one then stays.
    void zatwierdz();

private:
    [[noreturn]] void zglosBlad() const;
    std::unique_ptr<QSaveFile> plik_;
};

} // namespace tornel::common
