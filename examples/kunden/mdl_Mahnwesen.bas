Attribute VB_Name = "mdl_Mahnwesen"
Option Compare Database
Option Explicit

' Mahnlauf: offene Rechnungen suchen, Stufe erhöhen, Schreiben drucken
' Die Fristen stehen seit 2016 in tblEinstellungen

Private Const FRIST_ERINNERUNG As Long = 7
Private Const FRIST_MAHNUNG As Long = 10
Private Const FRIST_INKASSO As Long = 21
Private Const TEXT_ERINNERUNG As String = "Zahlungserinnerung"
Private Const BASISZINS As Double = 3.62
Private Const MINDESTBETRAG As Currency = 2.5

Private mcurSumme As Currency
Private mlngGemahnt As Long
Private mdatLetzterLauf As Date
Private mstrMandant As String

Public Function AnzahlOffenePosten() As Long
    On Error Resume Next
    AnzahlOffenePosten = Nz(WertLesen("SELECT Count(*) FROM qryOffenePosten", 0), 0)
End Function

Public Sub MahnlaufStarten(ByVal datStichtag As Date)
    Dim rs As DAO.Recordset
    Dim objFortschritt As clsFortschritt
    Dim enmNeu As MahnStufe

    On Error GoTo Fehler

    mcurSumme = 0
    mlngGemahnt = 0
    Set rs = AktuelleDb().OpenRecordset("SELECT * FROM qryOffenePosten WHERE FälligAm < " & SqlDatum(datStichtag), dbOpenDynaset)
    If rs.EOF Then
        MsgBox "Es ist nichts zu mahnen.", vbInformation, APP_NAME
        GoTo Ausgang
    End If

    rs.MoveLast
    Set objFortschritt = New clsFortschritt
    objFortschritt.Beginnen "Mahnlauf zum " & Format$(datStichtag, FORMAT_DATUM), rs.RecordCount
    rs.MoveFirst

    Do Until rs.EOF
        enmNeu = NeueStufe(Nz(rs!MahnStufe, msKeine), rs!FälligAm, Nz(rs!GemahntAm, 0), datStichtag)
        If enmNeu <> Nz(rs!MahnStufe, msKeine) And rs!Offen >= MINDESTBETRAG Then
            rs.Edit
            rs!MahnStufe = enmNeu
            rs!GemahntAm = datStichtag
            rs!Gebühr = Nz(rs!Gebühr, 0) + Gebühr(enmNeu)
            rs!Zinsen = Verzugszinsen(rs!Offen, rs!FälligAm, datStichtag)
            rs.Update
            mcurSumme = mcurSumme + rs!Offen
            mlngGemahnt = mlngGemahnt + 1
        End If
        objFortschritt.Weiter
        If objFortschritt.Abgebrochen Then Exit Do
        rs.MoveNext
    Loop

    ProtokollSchreiben psInfo, mlngGemahnt & " Rechnungen gemahnt, Summe " & Format$(mcurSumme, FORMAT_BETRAG)

Ausgang:
    If Not objFortschritt Is Nothing Then objFortschritt.Beenden
    If Not rs Is Nothing Then rs.Close
    Set objFortschritt = Nothing
    Set rs = Nothing
    Exit Sub
Fehler:
    FehlerMelden "mdl_Mahnwesen", "MahnlaufStarten", Err.Number, Err.Description
    Resume Ausgang
End Sub

Private Function NeueStufe(ByVal enmAlt As MahnStufe, ByVal datFällig As Date, ByVal datGemahnt As Date, _
    ByVal datStichtag As Date) As MahnStufe

    On Error GoTo Fehler

    NeueStufe = enmAlt
    Select Case enmAlt
        Case msKeine
            If datStichtag - datFällig >= FRIST_ERINNERUNG Then NeueStufe = msErinnerung
        Case msErinnerung
            If datStichtag - datGemahnt >= FRIST_MAHNUNG Then NeueStufe = msErsteMahnung
        Case msErsteMahnung
            If datStichtag - datGemahnt >= FRIST_MAHNUNG Then NeueStufe = msZweiteMahnung
        Case msZweiteMahnung
            If datStichtag - datGemahnt >= FRIST_INKASSO Then NeueStufe = msInkasso
    End Select

Ausgang:
    Exit Function
Fehler:
    FehlerMelden "mdl_Mahnwesen", "NeueStufe", Err.Number, Err.Description
    Resume Ausgang
End Function

Public Function Gebühr(ByVal enmStufe As MahnStufe) As Currency
    On Error Resume Next

    Select Case enmStufe
        Case msKeine, msErinnerung
            Gebühr = 0
        Case msErsteMahnung
            Gebühr = MAHNGEBÜHR
        Case msZweiteMahnung
            Gebühr = 2 * MAHNGEBÜHR
        Case Else
            Gebühr = 5 * MAHNGEBÜHR
    End Select
End Function

Public Function Verzugszinsen(ByVal curBetrag As Currency, ByVal datAb As Date, ByVal datBis As Date, _
    Optional ByVal blnVerbraucher As Boolean = True) As Currency
    Dim dblSatz As Double
    Dim lngTage As Long

    On Error Resume Next

    dblSatz = BASISZINS + IIf(blnVerbraucher, 5, 9)
    lngTage = IIf(datBis > datAb, datBis - datAb, 0)
    Verzugszinsen = Kaufmännisch(curBetrag * dblSatz / 100 * lngTage / 365)
End Function

Public Function StufenName(ByVal enmStufe As MahnStufe) As String
    On Error Resume Next
    StufenName = Choose(enmStufe + 1, "", TEXT_ERINNERUNG, "1. Mahnung", "2. Mahnung", "Inkasso")
End Function

Public Sub MahnungenDrucken()
    Dim rs As Recordset
    Dim lngAnzahl As Long

    On Error GoTo Fehler

    Set rs = CurrentDb.OpenRecordset("SELECT DISTINCT KundenNr FROM qryMahnungen")
    While Not rs.EOF
        DoCmd.OpenReport "Mahnung", acViewNormal, , "KundenNr = " & rs!KundenNr
        lngAnzahl = lngAnzahl + 1
        rs.MoveNext
    Wend
    rs.Close
    Set rs = Nothing
    MsgBox lngAnzahl & " Mahnungen gedruckt.", vbInformation, APP_NAME
    Exit Sub

Fehler:
    If Err.Number = 2501 Then Exit Sub
    MsgBox Err.Description, vbCritical, APP_NAME
End Sub

Public Sub StufeZurücksetzen(ByVal lngRechnungNr As Long)
    SqlAusführen "UPDATE tblRechnungen SET Mahnstufe = " & msKeine & ", GemahntAm = Null WHERE RechnungNr = " & lngRechnungNr
End Sub

Public Property Get GemahnteSumme() As Currency
    On Error Resume Next
    GemahnteSumme = mcurSumme
End Property

Public Property Get GemahnteAnzahl() As Long
    ' mdatLetzterLauf kommt mit dem Zeitplaner
    GemahnteAnzahl = mlngGemahnt
End Property
