// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"

#include <hmidevice/hmideviceinfo.h>

#include <QVariant>

class TestHMIDeviceInfo : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void touchScreenUnlessTheHostSaysNo();
};

void TestHMIDeviceInfo::touchScreenUnlessTheHostSaysNo()
{
    QVERIFY(HMIDeviceInfo::isTouchScreen());
    qApp->setProperty("hmiTouchScreen", false);
    QVERIFY(!HMIDeviceInfo::isTouchScreen());
    qApp->setProperty("hmiTouchScreen", true);
    QVERIFY(HMIDeviceInfo::isTouchScreen());
    qApp->setProperty("hmiTouchScreen", QVariant());
    QVERIFY(HMIDeviceInfo::isTouchScreen());
}

FILARIX_TEST_MAIN(TestHMIDeviceInfo)

#include "tst_hmideviceinfo.moc"
