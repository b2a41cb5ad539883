#include "platform/report/ReportSurroundings.h"

ReportSurroundings& ReportSurroundings::Current()
{
    static ReportSurroundings surroundings;
    return surroundings;
}
