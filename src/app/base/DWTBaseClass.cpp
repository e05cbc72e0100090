#include "app/base/DWTBaseClass.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

DWTBaseClass::~DWTBaseClass() {
    TBC_Dealloc();
}

bool DWTBaseClass::init() {
    return TBC_Init();
}

std::shared_ptr<DWTBaseClass> DWTBaseClass::BaseClass() {
    return make<DWTBaseClass>();
}

bool DWTBaseClass::checkLunchedMode() const {
    const QStringList arguments = QCoreApplication::arguments();
    return std::any_of(arguments.begin(), arguments.end(), [](const QString &argument) {
        return argument.compare(QLatin1String("-Installer"), Qt::CaseInsensitive) == 0;
    });
}

bool DWTBaseClass::TBC_Init() {
    return true;
}

void DWTBaseClass::TBC_Dealloc() {}
