Attribute VB_Name = "mdl_Protokoll"
Option Compare Database
Option Explicit

' Protokoll in Tabelle und Datei, Meldung von Fehlern

Private Const DATEI_PROTOKOLL As String = "Kunden.log"
Private Const MAX_LÄNGE As Long = 255
Private Const MAX_DATEIGRÖSSE As Long = 1048576

Private mlngAnzahl As Long
Private mblnAus As Boolean

Public Sub FehlerMelden(ByVal strModul As String, ByVal strProzedur As String, ByVal lngNummer As Long, ByVal strText As String)
    Dim strMeldung As String

    On Error Resume Next

    strMeldung = "Fehler " & lngNummer & " in " & strModul & "." & strProzedur & vbCrLf & strText
    ProtokollSchreiben psFehler, Replace(strMeldung, vbCrLf, " ")

    If gblnTestbetrieb Then
        Debug.Print strMeldung
        Stop
    End If

    Select Case lngNummer
        Case 3021
            MsgBox "Kein aktueller Datensatz.", vbInformation, APP_NAME
        Case 3022
            MsgBox "Dieser Eintrag besteht schon.", vbExclamation, APP_NAME
        Case 3197, 3218, 3260
            MsgBox "Der Datensatz wird gerade von einem anderen Benutzer bearbeitet.", vbExclamation, APP_NAME
        Case Else
            MsgBox strMeldung, vbCritical, APP_NAME
    End Select
End Sub

Public Sub ProtokollSchreiben(ByVal enmStufe As ProtokollStufe, ByVal strText As String)
    On Error Resume Next

    If mblnAus Then Exit Sub
    mlngAnzahl = mlngAnzahl + 1

    If enmStufe >= psWarnung Then
        InTabelle enmStufe, strText
    End If
    InDatei enmStufe, strText
End Sub

Private Sub InTabelle(ByVal enmStufe As ProtokollStufe, ByVal strText As String)
    Dim strSql As String

    On Error Resume Next

    strSql = "INSERT INTO tblProtokoll (Zeitpunkt, Stufe, Benutzer, Meldung) VALUES (Now(), " & enmStufe & ", " & _
        SqlText(gstrBenutzer) & ", " & SqlText(Left$(strText, MAX_LÄNGE)) & ")"
    AktuelleDb().Execute strSql
End Sub

Private Sub InDatei(ByVal enmStufe As ProtokollStufe, ByVal strText As String)
    Dim intDatei As Integer
    Dim strDatei As String

    On Error GoTo Fehler

    strDatei = AnwendungsPfad() & "\" & DATEI_PROTOKOLL
    If Len(Dir$(strDatei)) > 0 Then
        If FileLen(strDatei) > MAX_DATEIGRÖSSE Then ProtokollAblegen strDatei
    End If

    intDatei = FreeFile
    Open strDatei For Append Access Write As #intDatei
    Print #intDatei, Format$(Now, "yyyy-mm-dd hh:nn:ss"); " "; StufenText(enmStufe); " "; strText
    Close #intDatei

Ausgang:
    Exit Sub
Fehler:
    ' Ohne Datei wird nicht mehr geschrieben, sonst dreht sich alles im Kreis
    mblnAus = True
    Resume Ausgang
End Sub

Private Sub ProtokollAblegen(ByVal strDatei As String)
    Dim strAlt As String

    On Error Resume Next

    strAlt = strDatei & "." & Format(Date, "yyyymmdd")
    Kill strAlt
    Name strDatei As strAlt
End Sub

Private Function StufenText(ByVal enmStufe As ProtokollStufe) As String
    On Error Resume Next

    Select Case enmStufe
        Case psInfo
            StufenText = "INFO   "
        Case psWarnung
            StufenText = "WARNUNG"
        Case psFehler
            StufenText = "FEHLER "
    End Select
End Function

Public Property Get ProtokollAnzahl() As Long
    ProtokollAnzahl = mlngAnzahl
End Property

Public Property Get ProtokollAus() As Boolean
    On Error Resume Next
    ProtokollAus = mblnAus
End Property

Public Property Let ProtokollAus(ByVal blnWert As Boolean)
    On Error Resume Next
    mblnAus = blnWert
End Property
