Attribute VB_Name = "mdl_WinApi"
Option Compare Database
Option Explicit

' Aufrufe von Windows. Seit 2013 auch für die 64-Bit-Fassung.

Private Const MAX_PFAD As Long = 260
Private Const SW_ZEIGEN As Long = 1
Private Const SW_VERSTECKEN As Long = 0
Private Const HKEY_BENUTZER As Long = &H80000001
Private Const TASTE_UMSCHALT As Long = &H10

Private Type PunktTyp
    lngX As Long
    lngY As Long
End Type

Private Type RechteckTyp
    lngLinks As Long
    lngOben As Long
    lngRechts As Long
    lngUnten As Long
End Type

#If VBA7 Then
    Private Declare PtrSafe Function GetUserNameA Lib "advapi32.dll" (ByVal lpBuffer As String, ByRef nSize As Long) As Long
    Private Declare PtrSafe Function GetComputerNameA Lib "kernel32" (ByVal lpBuffer As String, ByRef nSize As Long) As Long
    Private Declare PtrSafe Function GetTempPathA Lib "kernel32" (ByVal nBufferLength As Long, ByVal lpBuffer As String) As Long
    Private Declare PtrSafe Function ShellExecuteA Lib "shell32.dll" (ByVal hWnd As LongPtr, ByVal lpOperation As String, _
        ByVal lpFile As String, ByVal lpParameters As String, ByVal lpDirectory As String, _
        ByVal nShowCmd As Long) As LongPtr
    Private Declare PtrSafe Function GetKeyState Lib "user32" (ByVal nVirtKey As Long) As Integer
    Private Declare PtrSafe Function GetCursorPos Lib "user32" (lpPoint As PunktTyp) As Long
    Private Declare PtrSafe Function GetWindowRect Lib "user32" (ByVal hWnd As LongPtr, lpRect As RechteckTyp) As Long
    Private Declare PtrSafe Function SetForegroundWindow Lib "user32" (ByVal hWnd As LongPtr) As Long
    Private Declare PtrSafe Function SendMessageA Lib "user32" (ByVal hWnd As LongPtr, ByVal wMsg As Long, _
        ByVal wParam As LongPtr, lParam As Any) As LongPtr
    Private Declare PtrSafe Sub Sleep Lib "kernel32" (ByVal dwMilliseconds As Long)
    Private Declare PtrSafe Sub CopyMemory Lib "kernel32" Alias "RtlMoveMemory" (Destination As Any, Source As Any, _
        ByVal lngBytes As LongPtr)
#Else
    Private Declare Function GetUserNameA Lib "advapi32.dll" (ByVal lpBuffer As String, ByRef nSize As Long) As Long
    Private Declare Function GetComputerNameA Lib "kernel32" (ByVal lpBuffer As String, ByRef nSize As Long) As Long
    Private Declare Function GetTempPathA Lib "kernel32" (ByVal nBufferLength As Long, ByVal lpBuffer As String) As Long
    Private Declare Function ShellExecuteA Lib "shell32.dll" (ByVal hWnd As Long, ByVal lpOperation As String, _
        ByVal lpFile As String, ByVal lpParameters As String, ByVal lpDirectory As String, _
        ByVal nShowCmd As Long) As Long
    Private Declare Function GetKeyState Lib "user32" (ByVal nVirtKey As Long) As Integer
    Private Declare Function GetCursorPos Lib "user32" (lpPoint As PunktTyp) As Long
    Private Declare Function GetWindowRect Lib "user32" (ByVal hWnd As Long, lpRect As RechteckTyp) As Long
    Private Declare Function SetForegroundWindow Lib "user32" (ByVal hWnd As Long) As Long
    Private Declare Function SendMessageA Lib "user32" (ByVal hWnd As Long, ByVal wMsg As Long, _
        ByVal wParam As Long, lParam As Any) As Long
    Private Declare Sub Sleep Lib "kernel32" (ByVal dwMilliseconds As Long)
    Private Declare Sub CopyMemory Lib "kernel32" Alias "RtlMoveMemory" (Destination As Any, Source As Any, _
        ByVal lngBytes As Long)
#End If

Public Function BenutzerName() As String
    Dim strPuffer As String
    Dim lngLänge As Long

    On Error GoTo Fehler

    lngLänge = 255
    strPuffer = String$(lngLänge, vbNullChar)
    If GetUserNameA(strPuffer, lngLänge) <> 0 Then
        BenutzerName = BisNull(strPuffer)
    Else
        BenutzerName = Environ$("USERNAME")
    End If

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_WinApi", "BenutzerName", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function RechnerName() As String
    Dim strPuffer As String
    Dim lngLänge As Long

    On Error GoTo Fehler

    lngLänge = 64
    strPuffer = String$(lngLänge, vbNullChar)
    If GetComputerNameA(strPuffer, lngLänge) <> 0 Then RechnerName = BisNull(strPuffer)

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_WinApi", "RechnerName", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function TempPfad() As String
    Dim strPuffer As String
    Dim lngLänge As Long

    On Error GoTo Fehler

    strPuffer = String$(MAX_PFAD, vbNullChar)
    lngLänge = GetTempPathA(MAX_PFAD, strPuffer)
    TempPfad = Left$(strPuffer, lngLänge)

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_WinApi", "TempPfad", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Sub DateiÖffnen(ByVal strDatei As String)
    #If VBA7 Then
        Dim lngErgebnis As LongPtr
    #Else
        Dim lngErgebnis As Long
    #End If

    On Error GoTo Fehler

    lngErgebnis = ShellExecuteA(Application.hWndAccessApp, "open", strDatei, vbNullString, vbNullString, SW_ZEIGEN)
    If lngErgebnis <= 32 Then
        MsgBox "Die Datei lässt sich nicht öffnen:" & vbCrLf & strDatei, vbExclamation, APP_NAME
    End If

Ausgang:
    Exit Sub
Fehler:
    FehlerMelden "mdl_WinApi", "DateiÖffnen", Err.Number, Err.Description
    Resume Ausgang
End Sub

Public Function IstUmschaltGedrückt() As Boolean
    On Error Resume Next
    IstUmschaltGedrückt = (GetKeyState(TASTE_UMSCHALT) < 0)
End Function

Public Sub ZeigerPosition(ByRef lngLinks As Long, ByRef lngOben As Long)
    Dim typPunkt As PunktTyp

    On Error Resume Next
    GetCursorPos typPunkt
    lngLinks = typPunkt.lngX
    lngOben = typPunkt.lngY
End Sub

Public Sub Warten(ByVal lngMillisekunden As Long)
    On Error Resume Next
    ' In Schritten, damit die Oberfläche nicht einfriert
    Do While lngMillisekunden > 50
        Sleep 50
        DoEvents
        lngMillisekunden = lngMillisekunden - 50
    Loop
    If lngMillisekunden > 0 Then Sleep lngMillisekunden
End Sub

Public Sub InDenVordergrund()
    On Error Resume Next
    SetForegroundWindow Application.hWndAccessApp
    ' SendMessageA brachte hier nichts, siehe Notiz vom 12.05.2011
End Sub

Private Function BisNull(ByVal strText As String) As String
    Dim lngPos As Long

    On Error Resume Next
    lngPos = InStr(strText, vbNullChar)
    If lngPos > 0 Then
        BisNull = Left$(strText, lngPos - 1)
    Else
        BisNull = strText
    End If
End Function
