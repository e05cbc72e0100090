#pragma once

#include <QString>

// Views of the send dialog.
inline const QString DWT_View_Key_Send_ChangeCheck =
    QStringLiteral("DWT_View_Key_Send_ChangeCheck");
inline const QString DWT_View_Key_Send_UpdateCheck =
    QStringLiteral("DWT_View_Key_Send_UpdateCheck");
inline const QString DWT_View_Key_Send_Confirm = QStringLiteral("DWT_View_Key_Send_Confirm");
inline const QString DWT_View_Key_Send_Progress = QStringLiteral("DWT_View_Key_Send_Progress");
inline const QString DWT_View_Key_Send_End = QStringLiteral("DWT_View_Key_Send_End");
inline const QString DWT_View_Key_Send_Login = QStringLiteral("DWT_View_Key_Send_Login");
inline const QString DWT_View_Key_Send_LoginError = QStringLiteral("DWT_View_Key_Send_LoginError");
inline const QString DWT_View_Key_Send_ConnectError =
    QStringLiteral("DWT_View_Key_Send_ConnectError");

// Views of the WPS guide.
inline const QString DWT_View_Key_Main_WPS1 = QStringLiteral("DWT_View_Key_Main_WPS1");
inline const QString DWT_View_Key_Main_WPS2 = QStringLiteral("DWT_View_Key_Main_WPS2");
