Attribute VB_Name = "mdl_Rechnung"
Option Compare Database
Option Explicit

' Aus Bestellungen werden Rechnungen

Private Const KREIS_RECHNUNG As String = "RE"
Private Const KREIS_GUTSCHRIFT As String = "GS"
Private Const BERICHT_RECHNUNG As String = "Rechnung"

Private mtypSummen As RechnungsSummen

Public Function RechnungErstellen(ByVal lngBestellNr As Long) As Long
    Dim rsBestellung As DAO.Recordset
    Dim rsRechnung As DAO.Recordset
    Dim lngRechnungNr As Long
    Dim blnOffen As Boolean

    On Error GoTo Fehler

    Set rsBestellung = AktuelleDb().OpenRecordset("SELECT * FROM tblBestellungen WHERE BestellNr = " & lngBestellNr, dbOpenSnapshot)
    If rsBestellung.EOF Then
        MsgBox "Die Bestellung " & lngBestellNr & " gibt es nicht.", vbExclamation, APP_NAME
        GoTo Ausgang
    End If

    If Not DarfBerechnetWerden(rsBestellung!Status) Then
        MsgBox "Die Bestellung ist " & StatusText(rsBestellung!Status) & " und kann nicht berechnet werden.", vbInformation, APP_NAME
        GoTo Ausgang
    End If

    SummenBilden lngBestellNr, mtypSummen
    If mtypSummen.lngPositionen = 0 Then
        MsgBox "Die Bestellung hat keine Positionen.", vbInformation, APP_NAME
        GoTo Ausgang
    End If

    DBEngine.Workspaces(0).BeginTrans
    blnOffen = True

    lngRechnungNr = NächsteNummer(KREIS_RECHNUNG)
    If lngRechnungNr = 0 Then Err.Raise vbObjectError + 1, "RechnungErstellen", "Es gibt keine Rechnungsnummer."

    Set rsRechnung = AktuelleDb().OpenRecordset("tblRechnungen", dbOpenDynaset)
    With rsRechnung
        .AddNew
        !RechnungNr = lngRechnungNr
        !BestellNr = lngBestellNr
        !KundenNr = rsBestellung!KundenNr
        !RechnungsDatum = Date
        !FälligAm = Fälligkeit(Date)
        !Netto = mtypSummen.curNetto
        !Steuer = mtypSummen.curSteuerVoll + mtypSummen.curSteuerErmäßigt
        !Brutto = mtypSummen.curBrutto
        !MahnStufe = msKeine
        .Update
    End With

    SqlAusführen "UPDATE tblBestellungen SET Status = " & bsBerechnet & " WHERE BestellNr = " & lngBestellNr
    DBEngine.Workspaces(0).CommitTrans
    blnOffen = False
    RechnungErstellen = lngRechnungNr

Ausgang:
    If Not rsRechnung Is Nothing Then rsRechnung.Close
    If Not rsBestellung Is Nothing Then rsBestellung.Close
    Set rsRechnung = Nothing
    Set rsBestellung = Nothing
    Exit Function
Fehler:
    If blnOffen Then DBEngine.Workspaces(0).Rollback
    blnOffen = False
    FehlerMelden "mdl_Rechnung", "RechnungErstellen", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Sub SummenBilden(ByVal lngBestellNr As Long, ByRef typSummen As RechnungsSummen)
    Dim rs As DAO.Recordset
    Dim curZeile As Currency
    Dim typLeer As RechnungsSummen

    On Error GoTo Fehler

    typSummen = typLeer
    Set rs = AktuelleDb().OpenRecordset("SELECT * FROM tblPositionen WHERE BestellNr = " & lngBestellNr, dbOpenSnapshot)
    Do Until rs.EOF
        curZeile = Kaufmännisch(rs!Menge * rs!Einzelpreis * (1 - Nz(rs!Nachlass, 0)))
        typSummen.curNetto = typSummen.curNetto + curZeile
        Select Case rs!SteuerArt
            Case ssVoll, ssAlt
                typSummen.curSteuerVoll = typSummen.curSteuerVoll + curZeile * SteuerProzent(rs!SteuerArt)
            Case ssErmäßigt
                typSummen.curSteuerErmäßigt = typSummen.curSteuerErmäßigt + curZeile * SteuerProzent(ssErmäßigt)
        End Select
        typSummen.lngPositionen = typSummen.lngPositionen + 1
        rs.MoveNext
    Loop
    typSummen.curSteuerVoll = Kaufmännisch(typSummen.curSteuerVoll)
    typSummen.curSteuerErmäßigt = Kaufmännisch(typSummen.curSteuerErmäßigt)
    typSummen.curBrutto = typSummen.curNetto + typSummen.curSteuerVoll + typSummen.curSteuerErmäßigt

Ausgang:
    If Not rs Is Nothing Then rs.Close
    Set rs = Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Rechnung", "SummenBilden", Err.Number, Err.Description
    Resume Ausgang
End Sub

' Die Funktion Round rundet zur geraden Ziffer, das Finanzamt nicht
Public Function Kaufmännisch(ByVal dblWert As Double) As Currency
    On Error Resume Next
    Kaufmännisch = Sgn(dblWert) * Int(Abs(dblWert) * 100 + 0.5) / 100
End Function

Public Function DarfBerechnetWerden(ByVal enmStatus As BestellStatus) As Boolean
    On Error Resume Next
    DarfBerechnetWerden = (enmStatus = bsGeliefert Or enmStatus = bsTeilgeliefert)
End Function

Public Function StatusText(ByVal enmStatus As BestellStatus) As String
    On Error Resume Next

    Select Case enmStatus
        Case bsEntwurf
            StatusText = "im Entwurf"
        Case bsOffen
            StatusText = "offen"
        Case bsTeilgeliefert
            StatusText = "zum Teil geliefert"
        Case bsGeliefert
            StatusText = "geliefert"
        Case bsBerechnet
            StatusText = "schon berechnet"
        Case bsStorniert
            StatusText = "storniert"
        Case Else
            StatusText = "in einem unbekannten Zustand (" & enmStatus & ")"
    End Select
End Function

Public Sub RechnungDrucken(ByVal lngRechnungNr As Long, Optional ByVal enmZiel As Long = 0)
    Dim strFilter As String
    Dim strDatei As String
    Dim strDrucker As String

    On Error GoTo Fehler

    strFilter = "RechnungNr = " & lngRechnungNr
    Select Case enmZiel
        Case dzVorschau
            DoCmd.OpenReport BERICHT_RECHNUNG, acViewPreview, , strFilter
        Case dzDrucker
            DoCmd.OpenReport BERICHT_RECHNUNG, acViewNormal, , strFilter
        Case dzDatei
            strDatei = AnwendungsPfad() & PFAD_ARCHIV & "RE" & Format$(lngRechnungNr, "000000") & ".pdf"
            DoCmd.OpenReport BERICHT_RECHNUNG, acViewPreview, , strFilter, acHidden
            DoCmd.OutputTo acOutputReport, BERICHT_RECHNUNG, acFormatPDF, strDatei
            DoCmd.Close acReport, BERICHT_RECHNUNG, acSaveNo
    End Select
    ' strDrucker wird nicht mehr gesetzt, der Bericht kennt seinen Drucker

Ausgang:
    Exit Sub
Fehler:
    ' 2501: der Benutzer hat den Druck abgebrochen
    If Err.Number <> 2501 Then FehlerMelden "mdl_Rechnung", "RechnungDrucken", Err.Number, Err.Description
    Resume Ausgang
End Sub

Public Function RechnungStornieren(ByVal lngRechnungNr As Long, Optional ByVal strGrund As String) As Boolean
    Dim lngGutschriftNr As Long
    Dim strSql As String

    On Error GoTo Fehler

    If MsgBox("Rechnung " & lngRechnungNr & " stornieren?", vbQuestion + vbYesNo + vbDefaultButton2, APP_NAME) <> vbYes Then
        Exit Function
    End If

    lngGutschriftNr = NächsteNummer(KREIS_GUTSCHRIFT)
    strSql = "INSERT INTO tblGutschriften (GutschriftNr, RechnungNr, Betrag, Grund, Angelegt) "
    strSql = strSql & "SELECT " & lngGutschriftNr & ", RechnungNr, Brutto, " & SqlText(strGrund) & ", Now() "
    strSql = strSql & "FROM tblRechnungen WHERE RechnungNr = " & lngRechnungNr
    If SqlAusführen(strSql) = 1 Then
        SqlAusführen "UPDATE tblRechnungen SET Storniert = True WHERE RechnungNr = " & lngRechnungNr
        RechnungStornieren = True
    End If

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Rechnung", "RechnungStornieren", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function BruttoAusNetto(ByVal curNetto As Currency, ByVal enmSatz As SteuerSatz) As Currency
    ' On Error hier nicht nötig, der Aufrufer fängt alles
    BruttoAusNetto = Kaufmännisch(curNetto * (1 + SteuerProzent(enmSatz)))
End Function
