#include "store/Polaczenie.h"
#include "common/Blad.h"
#include "store/ZapisDziennika.h"
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <sqlite3.h>

namespace tornel::store {

QByteArray nazwaSql(std::string_view nazwa) {
    QByteArray wynik("\"");
    for (const char znak : nazwa) {
        if (znak == '"') wynik += '"';
        wynik += znak;
    }
    return wynik += '"';
}

void UsunPlikBazy(const QString& sciezka) {
    QFile::remove(sciezka);
    QFile::remove(sciezka + QStringLiteral("-journal"));
}

Instrukcja::Instrukcja(Polaczenie& polaczenie, std::string_view sql) : polaczenie_(&polaczenie) {
    const int wynik = sqlite3_prepare_v3(polaczenie.uchwyt(), sql.data(), static_cast<int>(sql.size()),
                                         SQLITE_PREPARE_PERSISTENT, &stmt_, nullptr);
    if (wynik != SQLITE_OK)
        polaczenie.zglosBlad(QStringLiteral("Nie można przygotować polecenia bazy danych"));
}

Instrukcja::~Instrukcja() { sqlite3_finalize(stmt_); }

Instrukcja::Instrukcja(Instrukcja&& inna) noexcept
    : polaczenie_(inna.polaczenie_), stmt_(std::exchange(inna.stmt_, nullptr)) {}

Instrukcja& Instrukcja::zwiazana(int wynik) {
    if (wynik != SQLITE_OK)
        polaczenie_->zglosBlad(QStringLiteral("Nie można przekazać wartości do bazy danych"));
    return *this;
}

Instrukcja& Instrukcja::wiaz(int nr, qint64 liczba) {
    return zwiazana(sqlite3_bind_int64(stmt_, nr + 1, liczba));
}

Instrukcja& Instrukcja::wiaz(int nr, double liczba) {
    return zwiazana(sqlite3_bind_double(stmt_, nr + 1, liczba));
}

Instrukcja& Instrukcja::wiaz(int nr, std::string_view utf8) {
    return zwiazana(
        sqlite3_bind_text(stmt_, nr + 1, utf8.data(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT));
}

Instrukcja& Instrukcja::wiaz(int nr, const QString& tekst) {
    const QByteArray utf8 = tekst.toUtf8();
    return wiaz(nr, std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

Instrukcja& Instrukcja::wiazBajty(int nr, const QByteArray& bajty) {
    return zwiazana(sqlite3_bind_blob64(stmt_, nr + 1, bajty.constData(),
                                        static_cast<sqlite3_uint64>(bajty.size()), SQLITE_TRANSIENT));
}

Instrukcja& Instrukcja::wiazNull(int nr) { return zwiazana(sqlite3_bind_null(stmt_, nr + 1)); }

bool Instrukcja::wiersz() {
    const int wynik = sqlite3_step(stmt_);
    if (wynik == SQLITE_ROW) return true;
    if (wynik == SQLITE_DONE) return false;
    // The reset must not hide the cause, so the message is formed first.
    try {
        polaczenie_->zglosBlad(QStringLiteral("Nie można odczytać lub zapisać danych"));
    } catch (...) {
        sqlite3_reset(stmt_);
        throw;
    }
}

void Instrukcja::wykonaj() {
    while (wiersz()) {
    }
    sqlite3_reset(stmt_);
}

void Instrukcja::od_nowa() { sqlite3_reset(stmt_); }

bool Instrukcja::jestNull(int kolumna) const { return sqlite3_column_type(stmt_, kolumna) == SQLITE_NULL; }
int Instrukcja::typ(int kolumna) const { return sqlite3_column_type(stmt_, kolumna); }
qint64 Instrukcja::liczba(int kolumna) const { return sqlite3_column_int64(stmt_, kolumna); }
double Instrukcja::rzeczywista(int kolumna) const { return sqlite3_column_double(stmt_, kolumna); }

std::string_view Instrukcja::utf8(int kolumna) const {
    // As bytes: asked for text, the engine copies each one to put a zero behind it.
    const auto* tekst = static_cast<const char*>(sqlite3_column_blob(stmt_, kolumna));
    if (!tekst) return {};
    return {tekst, static_cast<std::size_t>(sqlite3_column_bytes(stmt_, kolumna))};
}

QString Instrukcja::tekst(int kolumna) const {
    const std::string_view utf8Tekst = utf8(kolumna);
    return QString::fromUtf8(utf8Tekst.data(), static_cast<qsizetype>(utf8Tekst.size()));
}

namespace {

/// Marks the file as a database of this program (in the header of every SQLite file).
constexpr int kZnakPliku = 0x544F524E;

QString przyczyna(sqlite3* baza) {
    switch (sqlite3_errcode(baza)) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QStringLiteral("plik jest otwarty w innym programie");
    case SQLITE_NOTADB:
        return QStringLiteral("plik nie jest bazą danych");
    case SQLITE_CORRUPT:
        return QStringLiteral("baza danych jest uszkodzona");
    case SQLITE_FULL:
        return QStringLiteral("na dysku nie ma miejsca");
    case SQLITE_READONLY:
        return QStringLiteral("pliku lub katalogu nie wolno zapisywać");
    case SQLITE_CANTOPEN:
        return QStringLiteral("nie można otworzyć pliku lub jego katalogu");
    case SQLITE_IOERR:
        return QStringLiteral("błąd odczytu lub zapisu na dysku");
    default:
        return QString::fromUtf8(sqlite3_errmsg(baza));
    }
}

} // namespace

Polaczenie::Polaczenie(const QString& sciezka, Sposob sposob) : sciezka_(sciezka) {
    const QFileInfo plik(sciezka);
    if (sposob == Sposob::Istniejaca && !plik.isFile())
        throw BladBazy(
            QStringLiteral("Nie można otworzyć bazy danych „%1”: nie ma takiego pliku.").arg(sciezka));
    if (sposob == Sposob::Nowa && plik.exists())
        throw BladBazy(
            QStringLiteral("Plik „%1” już istnieje. Nowa baza danych nie została utworzona.").arg(sciezka));
    // A new file is made by this program alone, so that a failure may take it away again.
    if (sposob == Sposob::Nowa && !QFile(sciezka).open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw BladBazy(
            QStringLiteral("Nie można utworzyć pliku „%1”. Nowa baza danych nie została utworzona.")
                .arg(sciezka));
    try {
        // The program is one thread, so the engine needs no locks of its own.
        constexpr int tryb = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
        if (sqlite3_open_v2(sciezka.toUtf8().constData(), &baza_, tryb, nullptr) != SQLITE_OK)
            zglosBlad(QStringLiteral("Nie można otworzyć bazy danych"));
        if (sqlite3_db_readonly(baza_, "main") == 1)
            throw BladBazy(QStringLiteral("Nie można otworzyć bazy danych „%1”: pliku nie wolno zapisywać.")
                               .arg(sciezka));
        sqlite3_extended_result_codes(baza_, 0);
        wykonaj("PRAGMA locking_mode=EXCLUSIVE; PRAGMA synchronous=FULL; PRAGMA journal_mode=TRUNCATE; "
                "PRAGMA cache_size=-65536; PRAGMA temp_store=MEMORY;");
        // Takes the lock now and keeps it; a read-only folder or a second program is met here, not at the
        // first save. The write itself proves that the file and its journal can be written; in an existing
        // file it is taken back, so that opening alone changes no byte of it.
        wykonaj("BEGIN EXCLUSIVE");
        Instrukcja znak(*this, "PRAGMA application_id");
        const qint64 znakPliku = znak.wiersz() ? znak.liczba(0) : 0;
        znak.od_nowa();
        if (sposob == Sposob::Istniejaca && znakPliku != kZnakPliku)
            throw BladBazy(
                QStringLiteral("Nie można otworzyć pliku „%1”: nie jest bazą danych programu.").arg(sciezka));
        wykonaj(QByteArray("PRAGMA application_id=" + QByteArray::number(kZnakPliku)).toStdString());
        wykonaj(sposob == Sposob::Nowa ? "COMMIT" : "ROLLBACK");
    } catch (...) {
        sqlite3_close_v2(std::exchange(baza_, nullptr));
        if (sposob == Sposob::Nowa) UsunPlikBazy(sciezka);
        throw;
    }
}

Polaczenie::~Polaczenie() {
    dziennik_.reset(); // its statements go before the file
    sqlite3_close_v2(baza_);
}

void Polaczenie::WlaczDziennik() {
    if (!dziennik_) dziennik_ = std::make_unique<ZapisDziennika>(*this);
}

void Polaczenie::wykonaj(std::string_view sql) {
    if (sqlite3_exec(baza_, std::string(sql).c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        zglosBlad(QStringLiteral("Nie można wykonać polecenia bazy danych"));
}

bool Polaczenie::jestTabela(const QString& nazwa) {
    Instrukcja pytanie(*this, "SELECT 1 FROM sqlite_master WHERE type='table' AND name=? COLLATE NOCASE");
    return pytanie.wiaz(0, nazwa).wiersz();
}

qint64 Polaczenie::ostatniWiersz() const { return sqlite3_last_insert_rowid(baza_); }
bool Polaczenie::wTransakcji() const { return sqlite3_get_autocommit(baza_) == 0; }

void Polaczenie::zglosBlad(const QString& krok) const {
    const QString co =
        czynnosc_.isEmpty() ? krok : QStringLiteral("Nie można wykonać czynności „%1”").arg(czynnosc_);
    throw BladBazy(QStringLiteral("%1 (plik „%2”): %3.").arg(co, sciezka_, przyczyna(baza_)));
}

void Polaczenie::WylaczDziennik() { dziennik_.reset(); }

Transakcja::Transakcja(Polaczenie& polaczenie, QStringView czynnosc)
    : polaczenie_(polaczenie), zewnetrzna_(!polaczenie.wTransakcji()) {
    if (!zewnetrzna_) return;
    polaczenie_.czynnosc_ = czynnosc.toString();
    auto bezNazwy = qScopeGuard([this] { polaczenie_.czynnosc_.clear(); });
    polaczenie_.wykonaj("BEGIN IMMEDIATE");
    bezNazwy.dismiss();
}

Transakcja::~Transakcja() {
    // An engine failure such as a full disk may have rolled back already.
    if (zewnetrzna_ && !zatwierdzona_ && polaczenie_.wTransakcji())
        sqlite3_exec(polaczenie_.uchwyt(), "ROLLBACK", nullptr, nullptr, nullptr);
    if (!zewnetrzna_) return;
    polaczenie_.czynnosc_.clear();
    if (polaczenie_.dziennik_ && !zatwierdzona_) polaczenie_.dziennik_->porzuc();
}

void Transakcja::zatwierdz() {
    if (zewnetrzna_) {
        if (polaczenie_.dziennik_) polaczenie_.dziennik_->dopiszCzynnosc(polaczenie_.czynnosc_);
        polaczenie_.wykonaj("COMMIT");
        if (polaczenie_.dziennik_) polaczenie_.dziennik_->zatwierdzono();
    }
    zatwierdzona_ = true;
}

} // namespace tornel::store
