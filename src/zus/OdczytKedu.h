// A collection as it stands in a file, for the eye: documents, their blocks, and what each line means. The
// file may come from anywhere, so nothing in it is relied on.
#pragma once
#include "zus/OpisKedu.h"
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace tornel::zus {

struct PoleOdczytane {
    QString napis;      ///< what the field means; "linia 3" where nobody knows
    QString wartosc;    ///< as people write it: "1234,56", "05-03-2001"
    bool puste = false; ///< one that the program leaves empty
};

struct BlokOdczytany {
    QString nazwa; ///< "DIPL"
    QString opis;  ///< what it is about, empty where nobody knows
    const BlokKedu* znany = nullptr;
    /// Its lines in the file's bytes.
    qsizetype poczatek = 0, koniec = 0;
};

struct DokumentOdczytany {
    QString kod; ///< "ZUA"
    QString opis;
    QList<BlokOdczytany> bloki;
};

class OdczytKedu {
public:
    /// Takes the bytes of a file apart. Never throws for what they hold: what is no collection has no
    /// documents, and `uwagi` says what was met.
    explicit OdczytKedu(QByteArray tresc);
    /// Throws `Blad` that names the file when it cannot be read.
    [[nodiscard]] static OdczytKedu zPliku(const QString& plik);

    [[nodiscard]] const QList<DokumentOdczytany>& dokumenty() const { return dokumenty_; }
    /// What does not look as the program writes it, each in words.
    [[nodiscard]] const QStringList& uwagi() const { return uwagi_; }
    /// The fields of a block; its lines as they stand where their number is another than it should be.
    [[nodiscard]] QList<PoleOdczytane> pola(const BlokOdczytany& blok) const;
    /// Whom a block is about: "Nowak Anna", or empty.
    [[nodiscard]] QString osoba(const BlokOdczytany& blok) const;
    /// Whom a document is about: that of its first block which is about somebody; empty for reports.
    [[nodiscard]] QString osoba(const DokumentOdczytany& dokument) const;

private:
    [[nodiscard]] QStringList linie(const BlokOdczytany& blok) const;

    QByteArray tresc_;
    QList<DokumentOdczytany> dokumenty_;
    QStringList uwagi_;
};

} // namespace tornel::zus
