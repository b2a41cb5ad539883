#include "platform/serial/MachineSerialPort.h"

namespace {

class MachineSerialPorts final : public SerialPorts {
public:
    std::unique_ptr<SerialPort> Make() override { return std::make_unique<MachineSerialPort>(); }

    std::chrono::microseconds Now() override
    {
        return std::chrono::duration_cast<std::chrono::microseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
    }
};

SerialPorts*& InPlace()
{
    static SerialPorts* ports = nullptr;
    return ports;
}

}

SerialPorts& SerialPorts::Current()
{
    static MachineSerialPorts machine;
    return InPlace() ? *InPlace() : machine;
}

void SerialPorts::Replace(SerialPorts* ports)
{
    InPlace() = ports;
}
