Attribute VB_Name = "mdl_Datenbank"
Option Compare Database
Option Explicit

' Zugriff auf die Daten. Nur hier wird CurrentDb gerufen.

Private Const WARTEZEIT As Long = 250
Private Const VERSUCHE As Long = 5
Private Const KENNWORT_LÄNGE As Integer = 12

Private mdb As DAO.Database

Public Function AktuelleDb() As DAO.Database
    On Error GoTo Fehler

    If mdb Is Nothing Then Set mdb = CurrentDb
    Set AktuelleDb = mdb

Ausgang:
    Exit Function
Fehler:
    Set mdb = CurrentDb
    Set AktuelleDb = mdb
    Resume Ausgang
End Function

Public Function SqlAusführen(ByVal strSql As String) As Long
    Dim lngVersuch As Long

    On Error GoTo Fehler

    AktuelleDb().Execute strSql, dbFailOnError + dbSeeChanges
    SqlAusführen = AktuelleDb().RecordsAffected

Ausgang:
    Exit Function
Fehler:
    ' 3218, 3260: gesperrt durch einen anderen Platz
    If (Err.Number = 3218 Or Err.Number = 3260) And lngVersuch < VERSUCHE Then
        lngVersuch = lngVersuch + 1
        Warten WARTEZEIT * lngVersuch
        Resume
    End If
    FehlerMelden "mdl_Datenbank", "SqlAusführen", Err.Number, Err.Description & " [" & strSql & "]"
    SqlAusführen = -1
    Resume Ausgang
End Function

Public Function SqlText(ByVal strWert As String) As String
    On Error Resume Next
    SqlText = "'" & Replace(strWert, "'", "''") & "'"
End Function

Public Function SqlDatum(ByVal datWert As Date) As String
    On Error Resume Next
    SqlDatum = "#" & Format$(datWert, "yyyy\-mm\-dd") & "#"
End Function

Public Function SqlZahl(ByVal dblWert As Double) As String
    On Error Resume Next
    SqlZahl = Trim$(Str$(dblWert))
End Function

Public Function WertLesen(ByVal strSql As String, Optional ByVal varVorgabe As Variant = Null) As Variant
    Dim rs As DAO.Recordset

    On Error GoTo Fehler

    WertLesen = varVorgabe
    Set rs = AktuelleDb().OpenRecordset(strSql, dbOpenSnapshot)
    If Not rs.EOF Then
        If Not IsNull(rs.Fields(0).Value) Then WertLesen = rs.Fields(0).Value
    End If

Ausgang:
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Exit Function
Fehler:
    FehlerMelden "mdl_Datenbank", "WertLesen", Err.Number, Err.Description & " [" & strSql & "]"
    Resume Ausgang
End Function

' Vergibt die nächste Nummer eines Nummernkreises. Sperrt den Satz, bis er geschrieben ist.
Public Function NächsteNummer(ByVal strKreis As String) As Long
    Dim rs As DAO.Recordset
    Dim lngVersuch As Long

    On Error GoTo Fehler

    Set rs = AktuelleDb().OpenRecordset("SELECT * FROM tblNummern WHERE Kreis = " & SqlText(strKreis), dbOpenDynaset)
    rs.LockEdits = True
    If rs.EOF Then
        rs.AddNew
        rs!Kreis = strKreis
        rs!Stand = 1
    Else
        rs.Edit
        rs!Stand = rs!Stand + 1
    End If
    NächsteNummer = rs!Stand
    rs.Update

Ausgang:
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Exit Function
Fehler:
    If Err.Number = 3260 And lngVersuch < VERSUCHE Then
        lngVersuch = lngVersuch + 1
        Warten WARTEZEIT
        Resume
    End If
    FehlerMelden "mdl_Datenbank", "NächsteNummer", Err.Number, Err.Description
    NächsteNummer = 0
    Resume Ausgang
End Function

Public Function TabelleVorhanden(ByVal strTabelle As String) As Boolean
    Dim tdf As TableDef

    On Error GoTo Fehler

    For Each tdf In AktuelleDb().TableDefs
        If StrComp(tdf.Name, strTabelle, vbTextCompare) = 0 Then
            TabelleVorhanden = True
            Exit For
        End If
    Next tdf

Ausgang:
    Set tdf = Nothing
    Exit Function
Fehler:
    FehlerMelden "mdl_Datenbank", "TabelleVorhanden", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function FeldVorhanden(ByVal strTabelle As String, ByVal strFeld As String) As Boolean
    Dim fld As Field

    On Error Resume Next

    Set fld = AktuelleDb().TableDefs(strTabelle).Fields(strFeld)
    FeldVorhanden = Not (fld Is Nothing)
    Set fld = Nothing
End Function

Public Sub TabellenNeuVerknüpfen(ByVal strDatendatei As String)
    Dim tdf As DAO.TableDef
    Dim lngAnzahl As Long

    On Error GoTo Fehler

    For Each tdf In AktuelleDb().TableDefs
        If Len(tdf.Connect) > 0 Then
            tdf.Connect = ";DATABASE=" & strDatendatei
            tdf.RefreshLink
            lngAnzahl = lngAnzahl + 1
        End If
    Next tdf
    ProtokollSchreiben psInfo, lngAnzahl & " Tabellen neu verknüpft mit " & strDatendatei

Ausgang:
    Set tdf = Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Datenbank", "TabellenNeuVerknüpfen", Err.Number, Err.Description
    Resume Ausgang
End Sub

Public Sub AbfrageSetzen(ByVal strAbfrage As String, ByVal strSql As String)
    Dim qdf As QueryDef
    Dim db As Database

    On Error GoTo Fehler

    Set db = CurrentDb
    Set qdf = db.QueryDefs(strAbfrage)
    qdf.SQL = strSql

Ausgang:
    Set qdf = Nothing
    Set db = Nothing
    Exit Sub
Fehler:
    If Err.Number = 3265 Then
        Set qdf = db.CreateQueryDef(strAbfrage, strSql)
        Resume Ausgang
    End If
    FehlerMelden "mdl_Datenbank", "AbfrageSetzen", Err.Number, Err.Description
    Resume Ausgang
End Sub

Public Sub DatenSichern()
    Dim strQuelle As String
    Dim strZiel As String
    Dim objDateien As Object

    On Error GoTo Fehler

    strQuelle = EinstellungLesen("Datendatei", vbNullString)
    If Len(strQuelle) = 0 Then GoTo Ausgang

    strZiel = AnwendungsPfad() & PFAD_ARCHIV & Format$(Now, "yyyymmdd_hhnn") & ".accdb"
    Set objDateien = CreateObject("Scripting.FileSystemObject")
    objDateien.CopyFile strQuelle, strZiel, True
    ProtokollSchreiben psInfo, "Gesichert nach " & strZiel

Ausgang:
    Set objDateien = Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Datenbank", "DatenSichern", Err.Number, Err.Description
    Resume Ausgang
End Sub
