#include "Screens.h"
#include "bench/BenchSociety.h"
#include "bench/Cases.h"
#include "bench/Outcomes.h"
#include "bench/ProgramPlay.h"
#include "platform/forms/ModalStack.h"

#include <cstdio>

namespace {

int Measure(int argc, char* argv[])
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    std::printf("Making the society: 500 members, 365,000 deliveries.\n");
    std::fflush(stdout);
    const BenchSociety society;
    RegisterStatementCases(society.Drives());
    RegisterCounterCases(society.Drives());
    RegisterSaveCases(society.Drives());
    RegisterListCases(society.Drives());
    RegisterRatesCases(society.Drives());
    RegisterPaymentCases(society.Drives());
    RegisterSlipsCases(society.Drives());
    RegisterReportCases(society.Drives());
    RegisterVoucherCases(society.Drives());
    RegisterSalesCases(society.Drives());
    RegisterBonusCases(society.Drives());
    RegisterVadhTootCases(society.Drives());
    RegisterLedgerCases(society.Drives());
    RegisterBackupCases(society.Drives());
    RegisterProgramCases(society.Drives());
    benchmark::RunSpecifiedBenchmarks();
    return Outcomes::Print() ? 0 : 1;
}

}

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    RegisterScreens();
    try {
        if (argc == 3 && qstrcmp(argv[1], "--play-start") == 0)
            return PlayStart(QString::fromLocal8Bit(argv[2]));
        if (argc == 3 && qstrcmp(argv[1], "--play-day") == 0)
            return PlayDay(QString::fromLocal8Bit(argv[2]));
        if (argc == 3 && qstrcmp(argv[1], "--play-slips") == 0)
            return PlaySlips(QString::fromLocal8Bit(argv[2]));
        if (argc == 3 && qstrcmp(argv[1], "--play-report") == 0)
            return PlayReport(QString::fromLocal8Bit(argv[2]));
        return Measure(argc, argv);
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "%s\n", error.Text().toUtf8().constData());
        return 1;
    }
}
