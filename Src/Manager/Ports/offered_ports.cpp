#include "Manager/Ports/offered_ports.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>

#include "Orvo/ports/device_ports.h"

namespace Orvo::Manager {
namespace {

class PortAccess {
    Q_DECLARE_TR_FUNCTIONS(Orvo::Manager::PortAccess)
};

QString toQt(StringView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

// By the lock that programs leave for one another; 0 when there is none.
qint64 userOf(const QFileInfo& port) {
    const QString name = port.canonicalFilePath().remove(0, int(sizeof "/dev/" - 1));
    qint64 process = 0;
    QString host;
    QString program;
    QLockFile lock("/var/lock/LCK.." + QString(name).replace('/', '_'));
    const bool isLocked = lock.getLockInfo(&process, &host, &program);
    return isLocked && QFileInfo::exists(QString("/proc/%1").arg(process)) ? process : 0;
}

}  // namespace

std::vector<OfferedPort> offeredPorts() {
    std::vector<OfferedPort> offered;
    for (const PortRecord& port : Runtime::serialPorts("/")) {
        const QString path = toQt(port.PortName);
        offered.push_back({path, toQt(port.Description), accessTo(path)});
    }
    return offered;
}

QString mayBeOpened() { return PortAccess::tr("You may open it"); }

QString accessTo(const QString& path) {
    QString obstacle = obstacleTo(path);
    if (!obstacle.isEmpty()) return obstacle;
    const qint64 user = userOf(QFileInfo(path));
    if (user == 0) return mayBeOpened();
    const bool isOurs = user == QCoreApplication::applicationPid();
    return isOurs ? PortAccess::tr("In use by this program")
                  : PortAccess::tr("In use by another program");
}

QString obstacleTo(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists() || (file.isReadable() && file.isWritable())) return {};
    const bool isForGroup = file.permission(QFile::ReadGroup | QFile::WriteGroup);
    if (!isForGroup || file.group().isEmpty())
        return PortAccess::tr("Only %1 may open it").arg(file.owner());
    return PortAccess::tr("Belongs to group %1, which you aren't in: ask the administrator")
        .arg(file.group());
}

}  // namespace Orvo::Manager
