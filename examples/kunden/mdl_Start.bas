Attribute VB_Name = "mdl_Start"
Option Compare Database
Option Explicit

' Start und Ende der Anwendung. AutoExec ruft AnwendungStarten auf.

Global gdatStart As Date
Global Const gstrHandbuch As String = "Handbuch.pdf"

Private mblnGestartet As Boolean
Private mobjEreignisse As clsFormularEreignisse
Private mlngStartZähler As Long

Public Function AnwendungStarten() As Boolean
    Dim strMeldung As String
    Dim lngOffen As Long

    On Error GoTo Fehler

    If mblnGestartet Then
        AnwendungStarten = True
        Exit Function
    End If

    gdatStart = Now
    gstrBenutzer = BenutzerName()
    gblnTestbetrieb = (EinstellungLesen("Testbetrieb", "0") = "1")

    If Not DatenbankPrüfen(strMeldung) Then
        MsgBox strMeldung, vbCritical, APP_NAME
        GoTo Ausgang
    End If

    glngBenutzerNr = BenutzerAnmelden(gstrBenutzer)
    If glngBenutzerNr = 0 Then
        MsgBox "Der Benutzer '" & gstrBenutzer & "' ist nicht angelegt.", vbExclamation, APP_NAME
        GoTo Ausgang
    End If

    Set mobjEreignisse = New clsFormularEreignisse
    mobjEreignisse.TastenkürzelAktiv = True

    lngOffen = AnzahlOffenePosten()
    If lngOffen > 0 Then
        ProtokollSchreiben psInfo, lngOffen & " offene Posten beim Start"
    End If

    DoCmd.OpenForm "Start"
    StatusZeigen "Angemeldet: " & gstrBenutzer
    mblnGestartet = True
    AnwendungStarten = True

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Start", "AnwendungStarten", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Sub AnwendungBeenden()
    On Error Resume Next

    SitzungSchließen
    StatusLöschen
    Set mobjEreignisse = Nothing
    mblnGestartet = False
    ProtokollSchreiben psInfo, "Ende nach " & DateDiff("n", gdatStart, Now) & " Minuten"
    DoCmd.Quit acQuitSaveNone
End Sub

Private Function DatenbankPrüfen(ByRef strMeldung As String) As Boolean
    Dim lngVersion As Long

    On Error GoTo Fehler

    lngVersion = CLng(EinstellungLesen("DbVersion", "0"))
    Select Case lngVersion
        Case DB_VERSION
            DatenbankPrüfen = True
        Case Is < DB_VERSION
            strMeldung = "Die Datendatei ist älter (" & lngVersion & ") als das Programm (" & DB_VERSION & ")."
        Case Else
            strMeldung = "Das Programm ist älter als die Datendatei. Bitte die neue Fassung holen."
    End Select

    If DatenbankPrüfen And Not TabelleVorhanden("tblKunden") Then
        strMeldung = "Die Tabelle der Kunden ist nicht verknüpft."
        DatenbankPrüfen = False
    End If

Ausgang:
    Exit Function
Fehler:
    strMeldung = "Die Datendatei ist nicht erreichbar: " & Err.Description
    Resume Ausgang
End Function

Private Function BenutzerAnmelden(ByVal strBenutzer As String) As Long
    Dim rs As DAO.Recordset

    On Error GoTo Fehler

    Set rs = AktuelleDb().OpenRecordset("SELECT * FROM tblBenutzer WHERE Anmeldename = " & SqlText(strBenutzer), dbOpenDynaset)
    If Not rs.EOF Then
        rs.Edit
        rs!LetzteAnmeldung = Now
        rs!Rechner = RechnerName()
        rs.Update
        BenutzerAnmelden = rs!BenutzerNr
    End If

Ausgang:
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Exit Function
Fehler:
    FehlerMelden "mdl_Start", "BenutzerAnmelden", Err.Number, Err.Description
    Resume Ausgang
End Function

Private Sub SitzungSchließen()
    On Error GoTo Fehler

    SqlAusführen "UPDATE tblBenutzer SET LetzteAbmeldung = Now() WHERE BenutzerNr = " & glngBenutzerNr

Ausgang:
    Exit Sub
Fehler:
    FehlerMelden "mdl_Start", "SitzungSchließen", Err.Number, Err.Description
    Resume Ausgang
End Sub

Public Sub StatusZeigen(ByVal strText As String)
    On Error Resume Next
    SysCmd acSysCmdSetStatus, strText
End Sub

Public Sub StatusLöschen()
    On Error Resume Next
    SysCmd acSysCmdClearStatus
End Sub

Public Function AnwendungsPfad() As String
    On Error Resume Next
    AnwendungsPfad = CurrentProject.Path
End Function

' Wird vom Menüband aufgerufen; der Parameter ist dort Pflicht
Public Sub HandbuchÖffnen(ByRef objSchaltfläche As Object)
    On Error GoTo Fehler

    DateiÖffnen AnwendungsPfad() & "\" & gstrHandbuch

Ausgang:
    Exit Sub
Fehler:
    FehlerMelden "mdl_Start", "HandbuchÖffnen", Err.Number, Err.Description
    Resume Ausgang
End Sub
