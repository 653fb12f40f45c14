Attribute VB_Name = "mdl_Export"
Option Compare Database
Option Explicit

' Ausgabe für die Buchhaltung, den Versand und die Tabellenkalkulation

Private Const KONTO_ERLÖSE_VOLL As Long = 8400
Private Const KONTO_ERLÖSE_ERMÄSSIGT As Long = 8300
Private Const KONTO_DEBITOR_AB As Long = 10000
Private Const DATEI_BUCHUNGEN As String = "Buchungen.csv"

Private Type Buchung
    datBeleg As Date
    strBeleg As String * 12
    lngSoll As Long
    lngHaben As Long
    curBetrag As Currency
End Type

Private Enum ExportArt
    eaBuchungen = 1
    eaVersand = 2
End Enum

Private marrBuchungen() As Buchung
Private mlngBuchungen As Long

Public Function BuchungenAusgeben(ByVal datVon As Date, ByVal datBis As Date, Optional ByVal strZiel As String = vbNullString) As Long
    Dim intKanal As Integer
    Dim i As Long

    On Error GoTo Fehler

    If Len(strZiel) = 0 Then strZiel = AnwendungsPfad() & "\" & DATEI_BUCHUNGEN
    BuchungenSammeln datVon, datBis
    If mlngBuchungen = 0 Then GoTo Ausgang

    intKanal = FreeFile
    Open strZiel For Output As #intKanal
    Print #intKanal, "Beleg;Datum;Soll;Haben;Betrag"
    For i = 1 To mlngBuchungen
        With marrBuchungen(i)
            Print #intKanal, Trim$(.strBeleg); TRENNZEICHEN; Format$(.datBeleg, FORMAT_DATUM); TRENNZEICHEN; _
                .lngSoll; TRENNZEICHEN; .lngHaben; TRENNZEICHEN; Format$(.curBetrag, "0.00")
        End With
    Next i
    BuchungenAusgeben = mlngBuchungen
    ExportMerken eaBuchungen, mlngBuchungen

Ausgang:
    If intKanal > 0 Then Close #intKanal
    Exit Function
Fehler:
    FehlerMelden "mdl_Export", "BuchungenAusgeben", Err.Number, Err.Description
    Resume Ausgang
End Function

Private Sub BuchungenSammeln(ByVal datVon As Date, ByVal datBis As Date)
    Dim rs As DAO.Recordset
    Dim strSql As String

    On Error GoTo Fehler

    mlngBuchungen = 0
    Erase marrBuchungen
    strSql = "SELECT * FROM qryBuchungen WHERE RechnungsDatum BETWEEN " & SqlDatum(datVon) & " AND " & SqlDatum(datBis)
    Set rs = AktuelleDb().OpenRecordset(strSql, dbOpenSnapshot)
    Do Until rs.EOF
        mlngBuchungen = mlngBuchungen + 1
        ReDim Preserve marrBuchungen(1 To mlngBuchungen)
        With marrBuchungen(mlngBuchungen)
            .datBeleg = rs!RechnungsDatum
            LSet .strBeleg = "RE" & rs!RechnungNr
            .lngSoll = KONTO_DEBITOR_AB + rs!KundenNr
            .lngHaben = ErlösKonto(rs!SteuerArt)
            .curBetrag = rs!Brutto
        End With
        rs.MoveNext
    Loop

Ausgang:
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Export", "BuchungenSammeln", Err.Number, Err.Description
    Resume Ausgang
End Sub

Private Function ErlösKonto(ByVal enmSatz As SteuerSatz) As Long
    On Error Resume Next
    ErlösKonto = IIf(enmSatz = ssErmäßigt, KONTO_ERLÖSE_ERMÄSSIGT, KONTO_ERLÖSE_VOLL)
End Function

Private Sub ExportMerken(ByVal enmArt As ExportArt, ByVal lngAnzahl As Long)
    On Error Resume Next
    SqlAusführen "INSERT INTO tblExporte (Art, Anzahl, Zeitpunkt) VALUES (" & enmArt & ", " & lngAnzahl & ", Now())"
End Sub

Public Sub VersandlisteAusgeben(ByVal datTag As Date)
    Dim rs As DAO.Recordset
    Dim intKanal As Integer
    Dim lngAnzahl As Long
    Dim strZeile As String

    On Error GoTo Fehler

    Set rs = AktuelleDb().OpenRecordset("SELECT * FROM qryVersand WHERE LieferTag = " & SqlDatum(datTag), dbOpenSnapshot)
    intKanal = FreeFile
    Open TempPfad() & "Versand" & Format$(datTag, "yyyymmdd") & ".txt" For Output As #intKanal
    Do Until rs.EOF
        strZeile = Auffüllen(Nz(rs!Firma, Nz(rs!Nachname, vbNullString)), 30) & _
            Auffüllen(Nz(rs!Straße, vbNullString), 30) & _
            Auffüllen(Nz(rs!Plz, vbNullString), 6) & _
            Auffüllen(Nz(rs!Ort, vbNullString), 25) & _
            Auffüllen(Format$(Nz(rs!Gewicht, 0), "0.0"), 8, True)
        Print #intKanal, strZeile
        lngAnzahl = lngAnzahl + 1
        rs.MoveNext
    Loop
    ExportMerken eaVersand, lngAnzahl

Ausgang:
    If intKanal > 0 Then Close #intKanal
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Export", "VersandlisteAusgeben", Err.Number, Err.Description
    Resume Ausgang
End Sub

Public Sub InTabellenkalkulation(ByVal strAbfrage As String)
    Dim objMappe As Object
    Dim objBlatt As Object
    Dim rs As DAO.Recordset
    Dim i As Integer

    On Error GoTo Fehler

    Set rs = AktuelleDb().OpenRecordset(strAbfrage, dbOpenSnapshot)
    Set objMappe = CreateObject("Excel.Application")
    objMappe.Visible = True
    Set objBlatt = objMappe.Workbooks.Add.Worksheets(1)
    For i = 0 To rs.Fields.Count - 1
        objBlatt.Cells(1, i + 1).Value = rs.Fields(i).Name
    Next i
    objBlatt.Rows(1).Font.Bold = True
    objBlatt.Range("A2").CopyFromRecordset rs
    objBlatt.Columns.AutoFit
    'Debug.Print rs.RecordCount

Ausgang:
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Set objBlatt = Nothing
    Set objMappe = Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Export", "InTabellenkalkulation", Err.Number, Err.Description
    Resume Ausgang
End Sub

' Schreibt zu Testzwecken alle Felder einer Tabelle in das Direktfenster
Public Sub FelderAuflisten(ByVal strTabelle As String)
    Dim fld As DAO.Field

    For Each fld In CurrentDb.TableDefs(strTabelle).Fields
        Debug.Print fld.Name, fld.Type, fld.Size
    Next fld
End Sub
