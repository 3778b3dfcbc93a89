#include "base/InstanceLock.h"
#include "base/StateFiles.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tarvanel {
namespace {

int instanceLockFD = -1;

} // namespace

bool acquireInstanceLock() {
    if (instanceLockFD >= 0) return true;
    ensureSupportDir();
    const QByteArray path = QFile::encodeName(supportPath(QStringLiteral(".instance.lock")));
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return true; // better to run than to refuse to start
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0) {
        instanceLockFD = fd;
        return true;
    }
    ::close(fd);
    return false;
}

void releaseInstanceLock() {
    if (instanceLockFD < 0) return;
    ::flock(instanceLockFD, LOCK_UN);
    ::close(instanceLockFD);
    instanceLockFD = -1;
}

} // namespace tarvanel
