#pragma once

#include <QString>

// Where port `number` lies on this machine. On Windows it is COMn. Elsewhere it is the link COMn in the
// folder of the links if there is one, even one that leads nowhere at the moment, and else the n-th port of
// the machine's own. Empty for a number below 1.
QString PortDevice(int number);

// Where an administrator links port numbers to devices; none at first.
void SetPortLinksFolder(const QString& folder);
