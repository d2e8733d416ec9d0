// A list at the left and the chosen row's fields at the right: what all such screens do alike.
#pragma once
#include "common/Rozmowa.h"
#include "okna/ListaModel.h"
#include "okna/Okno.h"
#include "okna/RamkiPol.h"
#include "okna/Wiazanie.h"
#include <memory>
#include <optional>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace tornel::okna {

class PoleSzukania;
class WidokListy;

/// What one such screen shows.
struct OpisListyPol {
    QString nazwa; ///< objectName of the screen
    QString tytul;
    QList<KolumnaListy> kolumny;
    QList<int> udzialy;    ///< width of each column in percent of the list's
    QString pustaLista;    ///< what an empty list says: what to do next
    int szerokosc = 0;     ///< of the list in pixels, 0 for the usual one
    QString szukaj;        ///< what the quick find says while it is empty
    int kolumnaNumeru = 0; ///< where the quick find looks for digits
    int kolumnaNazwy = 1;  ///< and where for letters
    QList<GrupaPol> grupy;
    QWidget* nadLista = nullptr;        ///< stands above the list and its quick find
    QString zakladki = {};              ///< objectName of the tabs
    int najszerszePodpisy = 0;          ///< captions wider than this are broken into lines; 0 for no bound
    QList<QPushButton*> przyciski = {}; ///< of the screen's own, behind that which deletes
    QString nowy = QStringLiteral("&Nowy");
    QString usun = QStringLiteral("&Usuń");
    QString powrot = QStringLiteral("&Powrót");
};

/// A changed row is stored before it is left and before the screen closes. Keys: Insert a new row, Delete in
/// the list deletes with a question, Ctrl+F or typing in the list filters, Enter goes to the next field,
/// Escape closes.
///
/// A screen gives the functions below and calls `Wczytaj` at the end of its constructor.
class frmListaPol : public OknoEdycji {
    Q_OBJECT
public:
    ~frmListaPol() override;

protected:
    frmListaPol(Rozmowa& rozmowa, std::unique_ptr<ZrodloPol> zrodlo, const OpisListyPol& opis,
                QWidget* rodzic);

    /// The rows in the order shown.
    [[nodiscard]] virtual QList<qint64> numery() = 0;
    /// What the list says of a row.
    [[nodiscard]] virtual QStringList tekstyWiersza(qint64 id) = 0;
    /// Moves the source of the fields to the row; false if there is none.
    virtual bool przejdz(qint64 id) = 0;
    /// Stores what the fields have written to their source. False if it is refused, after a message.
    [[nodiscard]] virtual bool zapisz(qint64 id) = 0;
    /// Drops what the fields have written to their source and nobody stored.
    virtual void porzuc() = 0;
    /// Makes a row and gives it; nothing when the clerk refuses.
    [[nodiscard]] virtual std::optional<qint64> utworz() = 0;
    /// Asks and deletes the row; false if it stays.
    [[nodiscard]] virtual bool skasuj(qint64 id) = 0;
    /// The row to choose once `id` was deleted.
    [[nodiscard]] virtual qint64 poUsunieciu(qint64 id);
    /// After a row was shown, or (`id` -1) an empty list.
    virtual void pokazano(qint64 id) { Q_UNUSED(id) }

    /// Fills the list and shows row `id`, else the first. What was typed and not stored is dropped.
    void Wczytaj(qint64 id = -1);
    /// Stores the row shown if something was changed. False if it was refused, or if a field has just had to
    /// say that it did not understand what was typed; on a failure the exception passes through. In all these
    /// cases the fields keep what was typed.
    bool Wpisz();
    [[nodiscard]] qint64 biezacy() const { return biezacy_; }
    [[nodiscard]] Wiazanie& wiazanie() { return wiazanie_; }
    [[nodiscard]] const Wiazanie& wiazanie() const { return wiazanie_; }
    /// Puts a widget below the frames of the fields.
    void dodaj(QWidget* widzet);
    /// Puts a widget above the fields, or below the list.
    void dodajNadPolami(QWidget* widzet);
    void dodajPodLista(QWidget* widzet);
    [[nodiscard]] WidokListy& lista() { return *lvwLista_; }

    [[nodiscard]] bool jestZmiana() const override { return biezacy_ >= 0 && wiazanie_.jestZmiana(); }
    [[nodiscard]] bool zapiszZmiany() override { return Wpisz(); }
    void porzucZmiany() override { porzuc(); }
    void pokazPonownie() override;

private:
    [[nodiscard]] QWidget* lewaStrona(const OpisListyPol& opis);
    [[nodiscard]] QWidget* prawaStrona(const OpisListyPol& opis);
    [[nodiscard]] QWidget* dol(const QList<QPushButton*>& wlasne);
    void budujSkroty();
    void wybierzWiersz(qint64 id);
    void Wypisz(qint64 id);
    void przywroc(const QHash<QString, QString>& wpisane);
    void doPierwszegoPola();
    void nowy();
    void usun();

    std::unique_ptr<ZrodloPol> zrodlo_;
    Wiazanie wiazanie_;
    QStringList pola_; ///< names of the fields that can be typed into
    qint64 biezacy_ = -1;
    WidokListy* lvwLista_;
    PoleSzukania* txtSzukaj_ = nullptr;
    QVBoxLayout *ramki_ = nullptr, *lewy_ = nullptr;
    QPushButton *cmdNowy_, *cmdUsun_, *cmdAnuluj_;
};

} // namespace tornel::okna
