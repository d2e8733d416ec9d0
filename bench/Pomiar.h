// What the benchmarks share: the clock, the memory, copies of the example firm, a silent clerk.
#pragma once
#include "common/Rozmowa.h"
#include "start/Przyklad.h"
#include <fstream>
#include <functional>
#include <malloc.h>
#include <memory>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <string>

namespace tornel::bench {

using namespace tornel::start;

/// Answers Yes and says nothing.
class RozmowaCicha : public Rozmowa {
public:
    void komunikat(const QString&, Styl, const QString&) override {}
    bool pytanie(const QString&, const QString&) override { return true; }
    std::optional<QString> wprowadz(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    std::unique_ptr<Postep> postep(const QString&, int) override {
        struct Cichy : Postep {
            bool krok(int, const QString&) override { return true; }
        };
        return std::make_unique<Cichy>();
    }
};

inline double sekundy(const std::function<void()>& praca) {
    QElapsedTimer zegar;
    zegar.start();
    praca();
    return static_cast<double>(zegar.nsecsElapsed()) / 1e9;
}

inline void zerujSzczytPamieci() {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

inline double szczytPamieciMiB() {
    std::ifstream stan("/proc/self/status");
    for (std::string linia; std::getline(stan, linia);)
        if (linia.starts_with("VmHWM:")) return std::stod(linia.substr(6)) / 1024.0;
    return 0;
}

/// A copy of the example firm with `ile` employees and `miesiecy` computed months; made once for each pair.
inline QString kopiaFirmy(int ile, int miesiecy) {
    const QDir folder(QDir::temp().filePath(QStringLiteral("tornel-bench")));
    folder.mkpath(QStringLiteral("."));
    const QString wzor = folder.filePath(QStringLiteral("firma-%1-%2.mdb").arg(ile).arg(miesiecy));
    if (!QFile::exists(wzor)) UtworzPrzyklad(wzor, ile, miesiecy, folder.path());
    QString robocza = folder.filePath(QStringLiteral("robocza.mdb"));
    QFile::remove(robocza);
    QFile::copy(wzor, robocza);
    return robocza;
}

} // namespace tornel::bench
